// What looks on as the program saves: the copies of the time machine, and the last commands to be
// undone. One for the data directory of a run.
#pragma once

#include "books/copies/CopyKeeper.h"
#include "books/copies/UndoLog.h"
#include "books/store/SaveWatch.h"

namespace kladez {

class Safekeeping : public SaveWatch {
 public:
  // Looks on from here to its end.
  Safekeeping(DataDir& data, SettingsStore& settings, const Clock& clock)
      : data_(data), copies_(data, settings, clock), undo_(data) {
    data_.SetWatch(this);
  }
  ~Safekeeping() override { data_.SetWatch(nullptr); }
  Safekeeping(const Safekeeping&) = delete;
  Safekeeping& operator=(const Safekeeping&) = delete;

  // The two that look on, for whoever asks them for more; valid as long as this.
  CopyKeeper& Copies() { return copies_; }
  UndoLog& Undo() { return undo_; }

  // Throws what CopyKeeper::BeforeSave throws: the save is off then, nothing has changed.
  void BeforeSave(const SaveSet& save) override {
    copies_.BeforeSave(save);
    undo_.BeforeSave(save);
  }
  // The save went through: its command can be undone.
  void AfterSave(const SaveSet& save) override { undo_.AfterSave(save); }

 private:
  DataDir& data_;
  CopyKeeper copies_;
  UndoLog undo_;
};

}  // namespace kladez
