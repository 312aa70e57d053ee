// Copies files and whole directories of the machine, as backup and restore do. What is to be copied
// is gathered first and nothing of it is written: a link, a pipe or a directory that can't be read
// is found before the first byte is copied.
#pragma once

#include <QByteArray>
#include <vector>

#include "formats/Progress.h"

namespace kladez {

class TreeCopy {
 public:
  // Paths are absolute and in the file system's encoding. Both throw filesystem_error with the path
  // at fault. The directory itself is made by Run; nothing may stand under its new name then.
  void AddTree(const QByteArray& from, const QByteArray& to);
  void AddFile(const QByteArray& from, const QByteArray& to);

  // How much there is to copy, in units for comparison with other copies.
  qint64 Size() const { return size_; }

  // Makes the directories and copies the files; tells the progress after each. Throws
  // filesystem_error with the file at fault, and WorkCancelled. What was copied until then stays:
  // the caller removes it.
  void Run(const Progress& progress) const;

 private:
  struct Piece {
    QByteArray from;  // empty for a directory
    QByteArray to;
    qint64 size;
  };

  std::vector<Piece> pieces_;
  qint64 size_ = 0;
};

}  // namespace kladez
