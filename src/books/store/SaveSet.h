// One command's changes to the data directory, made all or not at all. A command gathers the new
// contents of all files that it changes and commits once; after a crash, a power cut or a full disk
// at any instant the directory holds, after the next Recover, either all of the changes or none.
//
// How: new contents are written and synced beside the Databases in files ".kladez-save...", with
// links to what they replace; then a manifest makes the set final, the changes are made one by one,
// and all these files are removed. A manifest that a crash left is carried out by Recover; staged
// files without a manifest are thrown away. An error on the way takes every change back.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "formats/TextLines.h"

namespace kladez {

class SaveSet {
 public:
  // An empty set; nothing is touched before Commit. The data directory outlives it.
  // `what` says in a person's words what has been done, to stand behind "Отменить: ": "накладная 48
  // удалена". It is empty where no person has changed books, as for a page that is printed.
  explicit SaveSet(const DataDir& data, const QString& what = {}) : data_(data), what_(what) {}

  // A copy of each Database that is changed is made first: the command replaces what nobody could
  // type again. Deleting or renaming a directory asks for it by itself.
  void CopyFirst() { copy_first_ = true; }

  // Each takes paths of the system and throws filesystem_error for one that leads out. A path is
  // looked up on the disk as it is before the commit, so nothing inside a directory that the same
  // set renames may be named by its new path.
  void Write(const QString& path, QByteArray bytes);
  // The same out of a working copy: the commit throws StaleFile where the file is no longer as it
  // was read. Afterwards `read` is the state of what was written; it must live until then.
  void Write(const QString& path, QByteArray bytes, FileState& read);
  // A file that is not there yet: the commit throws filesystem_error (EEXIST) where one appeared.
  void WriteNew(const QString& path, QByteArray bytes);
  // A file that the changes were worked out from, and that is not written itself.
  void Expect(const QString& path, const FileState& read);
  // Contents too long to lie in memory: made piece by piece during the commit; what making them
  // throws goes on to the caller, and nothing has changed then.
  using Contents = std::function<void(const ByteSink&)>;
  void WriteInPieces(const QString& path, Contents contents);
  // Adds lines to the end of a file as it is now; the file must exist.
  void Append(const QString& path, QByteArrayView lines);
  void Delete(const QString& path);                              // a file; fails if read-only
  void MakeDirectory(const QString& path);                       // nothing to do where it exists
  void MakeNewDirectory(const QString& path);                    // fails where it exists
  void DeleteTree(const QString& path);                          // all it holds, read-only or not
  void RenameDirectory(const QString& from, const QString& to);  // fails where `to` exists

  // Makes all changes, in the order in which they were added, and syncs them to the disk. Throws
  // filesystem_error with the path at fault; nothing has changed then.
  void Commit();

  // Finishes or takes back what a crash left. Call it before the first file is read. Throws
  // filesystem_error.
  static void Recover(const DataDir& data);

  // The numbers stand in manifests.
  enum class Kind { kWrite, kDelete, kDeleteTree, kMakeDirectory, kRename, kLast = kRename };
  struct Change {
    Kind kind;
    QByteArray path;     // absolute, in the file system's encoding
    QByteArray to;       // renames
    bool fresh = false;  // nothing stood at the path before
    QByteArray bytes;
    Contents contents = {};  // of a write, instead of the bytes
    bool only_new = false;   // nothing may stand at the path
    // Of a write whose list may reach the disk before its new contents do: what stood at the path,
    // "none", or a fingerprint. Empty where the list never does.
    QByteArray before = {};
  };
  struct Expectation {
    QByteArray path;
    FileState state;
    FileState* written = nullptr;  // gets the state of what was written
  };

  // For whoever looks on (SaveWatch.h).
  const DataDir& Data() const { return data_; }
  const QString& What() const { return what_; }
  const std::vector<Change>& Changes() const { return changes_; }
  bool NeedsCopy() const;

 private:
  QByteArray Target(const QString& path) const;
  Change* LastChangeOf(const QByteArray& target);

  const DataDir& data_;
  const QString what_;
  bool copy_first_ = false;
  std::vector<Change> changes_;
  std::vector<Expectation> expected_;
};

}  // namespace kladez
