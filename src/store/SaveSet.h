// One command's changes to the data directory, made all or not at all. A command gathers the new
// contents of all files that it changes and commits once; after a crash, a power cut or a full disk
// at any instant the directory holds, after the next Recover, either all of the changes or none.
//
// How: new contents are written and synced beside the Databases in ".kladez-save", with links to
// what they replace; then a manifest makes the set final, the changes are made one by one, and the
// whole ".kladez-save" is removed. A manifest that a crash left is carried out by Recover; staged
// files without a manifest are thrown away. An error on the way takes every change back.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "store/DataDir.h"

namespace kladez {

class SaveSet {
 public:
  explicit SaveSet(const DataDir& data) : data_(data) {}

  // Each takes paths of the system and throws filesystem_error for one that leads out.
  void Write(const QString& path, QByteArray bytes);
  // Adds lines to the end of a file as it is now; the file must exist. A last line that lacks its
  // CR LF gets it first, or the first new line would run into it.
  void Append(const QString& path, QByteArrayView bytes);
  void Delete(const QString& path);
  void MakeDirectory(const QString& path);  // nothing to do where it exists
  void DeleteTree(const QString& path);     // with all it holds, read-only or not
  void RenameDirectory(const QString& from, const QString& to);  // fails where `to` exists

  // Makes all changes, in the order in which they were added, and syncs them to the disk. Throws
  // filesystem_error with the path at fault; nothing has changed then.
  void Commit();

  // Finishes or takes back what a crash left. Call it before the first file is read.
  static void Recover(const DataDir& data);

  enum class Kind { kWrite, kDelete, kMakeDirectory, kRename };
  struct Change {
    Kind kind;
    QByteArray path;     // absolute, in the file system's encoding
    QByteArray to;       // renames
    bool fresh = false;  // nothing stood at the path before
    QByteArray bytes;
  };

 private:
  void Add(Kind kind, const QString& path, QByteArray bytes = {});

  const DataDir& data_;
  std::vector<Change> changes_;
};

}  // namespace kladez
