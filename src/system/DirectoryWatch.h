// Tells what has changed in a directory since one last asked, whoever changed it, so that what was
// read from it needs no second look. Only where the system can know: a file system of this machine,
// not one that others can write to unseen.
#pragma once

#include <QByteArray>
#include <optional>
#include <set>

namespace kladez {

class DirectoryWatch {
 public:
  // Names of files that were written, made, renamed or removed, as the file system has them.
  using Names = std::set<QByteArray>;

  DirectoryWatch() = default;
  ~DirectoryWatch() { Stop(); }
  DirectoryWatch(const DirectoryWatch&) = delete;
  DirectoryWatch& operator=(const DirectoryWatch&) = delete;

  // Watches the directory of that path (of the machine) from now on; without a word where the
  // system can't tell.
  void Start(const QByteArray& path);
  void Stop();
  // What has changed in that directory since Start or the last question. Nothing where it can't be
  // told: another path, another directory under it, too much at once. The watch has ended then.
  std::optional<Names> Changes(const QByteArray& path);

 private:
  int descriptor_ = -1;
  QByteArray path_;
  quint64 device_ = 0;
  quint64 inode_ = 0;
};

}  // namespace kladez
