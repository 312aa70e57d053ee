// The last commands of this run, each kept with what it replaced, so that it can be taken back as
// one step. All lies in memory and is bounded: the oldest step goes first.
#pragma once

#include <QByteArray>
#include <QString>
#include <deque>
#include <vector>

#include "books/store/SaveSet.h"
#include "books/store/Session.h"

namespace kladez {

class UndoLog {
 public:
  // Empty; the directory outlives it.
  explicit UndoLog(const DataDir& data) : data_(data) {}

  // Keeps what the save will replace; makes a step of it once the save went through. Commands that
  // have no name in a person's words are none of a person's.
  void BeforeSave(const SaveSet& save);
  void AfterSave(const SaveSet& save);

  // What the next step would take back, "накладная 48 удалена"; empty where nothing is left.
  QString Last() const { return steps_.empty() ? QString() : steps_.back().what; }
  // Takes the last command back, in one save. Throws filesystem_error with the reason where a file
  // has changed since, where the step would take away the open Database, or where what the command
  // replaced was too much to be kept; nothing has changed then. The session is to be opened anew.
  void UndoLast(const Session& session);

  // A Database was opened, by a seller or by somebody who may more. What others have done is not a
  // seller's to take back: it is forgotten.
  void OpenedBy(bool seller);

  static constexpr size_t kMostSteps = 20;
  static constexpr qsizetype kMostBytes = qsizetype{64} << 20;  // of all steps together

 private:
  struct OldFile {
    QString path;  // of the system
    QByteArray bytes;
  };
  struct OldState {
    SaveSet::Kind kind;
    QString path;
    QString to;  // of a rename
    bool existed = false;
    QByteArray bytes;         // of a file that was written or deleted
    FileState made;           // what the command made of it
    QStringList directories;  // of a tree, the outer ones first
    std::vector<OldFile> files;
  };
  struct Step {
    QString what;
    std::vector<OldState> states;
    qsizetype bytes = 0;
    bool too_much = false;
  };

  QString SystemPath(const QByteArray& path) const;
  OldState StateBefore(const SaveSet::Change& change, Step& step) const;
  void KeepTree(const QByteArray& directory, OldState& state, Step& step) const;
  void AddReversal(SaveSet& save, const Step& step, const OldState& state) const;
  void RequireOnlyItsOwn(const Step& step, const QString& directory) const;

  const DataDir& data_;
  Step pending_;
  std::deque<Step> steps_;
  bool seller_ = false;
};

}  // namespace kladez
