// Where a set lies until it is made: new contents, what they replace and the list of changes, all
// under names of one beginning in the data directory itself, so that one sync of it keeps them all.
// Versions before had them in a directory of that name; what a crash of one of them left is found
// there.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace kladez {

class SaveStage {
 public:
  enum class Form { kFlat, kDirectory };

  // Nothing is made; the file names are those of the form.
  explicit SaveStage(const QByteArray& root, Form form = Form::kFlat);

  // Staged files of each set have a name of their own: a list that an unsynced removal brings back
  // must not meet the files of a later set.
  void SetKey(const QByteArray& key) { key_ = key; }
  const QByteArray& Key() const { return key_; }
  static QByteArray NewKey();

  QByteArray New(size_t index) const { return Staged("new.", index); }
  QByteArray Old(size_t index) const { return Staged("old.", index); }
  QByteArray Draft() const { return base_ + "manifest.draft"; }
  QByteArray Manifest() const { return base_ + "manifest"; }
  QByteArray TakingBack() const { return base_ + "taking-back"; }

  // A plain directory is there to hold the files.
  bool IsThere() const;
  // 0 or an errno. The directory that holds the files keeps their names.
  int Sync() const;
  // Removes what is staged in either form. The marks go first, and for good where that is wanted:
  // where one stays, all stays, so that the set may be repeated.
  static int Discard(const QByteArray& root, bool for_good);
  // Moves all of it into a directory `aside`, which must not exist; the manifest last.
  int PutAside(const QByteArray& aside) const;

 private:
  QByteArray Staged(const char* name, size_t index) const {
    return base_ + key_ + name + QByteArray::number(static_cast<qulonglong>(index));
  }

  Form form_;
  QByteArray root_;
  QByteArray directory_;  // that holds the files
  QByteArray base_;       // what all their paths begin with
  QByteArray key_;        // ends in "."
};

}  // namespace kladez
