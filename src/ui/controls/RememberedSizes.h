// Dialogs and columns keep the size that the user gave them, for each screen and each size of the
// display; no window opens larger than the display or off it.
#pragma once

#include <QObject>

class QHeaderView;
class QWidget;

namespace kladez {

class RecordList;
class SettingsStore;

// Holds for the whole application as long as the object lives.
class RememberedSizes : public QObject {
 public:
  explicit RememberedSizes(SettingsStore& settings);
  ~RememberedSizes() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Open(QWidget* window);
  void Close(const QWidget* window);
  void OpenColumns(RecordList* list);
  void CloseColumns(const RecordList* list);

  SettingsStore& settings_;
};

}  // namespace kladez
