// Every call that changes the disk goes through these, so that a test can let each of them fail, or
// kill the process at it, one after the other.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <functional>
#include <string_view>

#include "system/FileStatus.h"

namespace kladez::syscalls {

// Asked before each call with its name ("create", "write", "copy", "fsync", "syncfs", "rename",
// "link", "unlink", "mkdir", "rmdir") and its path; a result other than 0 is the errno with which
// the call fails.
using FaultHook = std::function<int(std::string_view call, const QByteArray& path)>;
// For tests; an empty one lets all calls go through.
void SetFaultHook(FaultHook hook);

// Told of each change that was made, by the names above. `from` is what a rename or link is of, or
// empty; `bytes` is what was written at the end of the file.
struct Made {
  std::string_view call;
  const QByteArray& path;
  QByteArray from = {};
  QByteArrayView bytes = {};
};
using Recorder = std::function<void(const Made& made)>;
// For tests, as the hook is; an empty one ends the record.
void SetRecorder(Recorder recorder);

// All paths are absolute, in the file system's encoding and without links: one that leads through
// a link is refused (ELOOP), so that nothing outside of where the caller means is ever touched.
// Each returns 0 or an errno.
int WriteNewFile(const QByteArray& path, QByteArrayView bytes, unsigned mode);  // made, synced
int SyncDirectory(const QByteArray& path);
int Rename(const QByteArray& from, const QByteArray& to);       // replaces `to`
int RenameToNew(const QByteArray& from, const QByteArray& to);  // fails where `to` exists
int MoveAway(const QByteArray& from, const QByteArray& to);     // also a read-only directory
int KeepCopy(const QByteArray& of, const QByteArray& as);       // a link, else a copy
int CopyNewFile(const QByteArray& from, const QByteArray& to);  // keeps the time; not synced
int SyncFileSystem(const QByteArray& path);                     // all that was written to it
int Unlink(const QByteArray& path);
int MakeDirectory(const QByteArray& path);
int RemoveDirectory(const QByteArray& path);
int RemoveTree(const QByteArray& path);  // with all that it holds, read-only or not

bool Exists(const QByteArray& path);  // a link counts, wherever it leads
// What lies there, a link being a link; ENOENT where nothing does.
int Look(const QByteArray& path, FileStatus* status);
// The same where directories on the way may be links.
int LookThroughLinks(const QByteArray& path, FileStatus* status);
// The bytes of a plain file, EFBIG where there are more of them; nothing else is read from.
int ReadPlainFile(const QByteArray& path, qint64 most, QByteArray* bytes);
// As on a kernel that can't look a path up without links by itself; for tests.
void PretendOldKernel(bool old);
// The errno with which writing to a file or into a directory would be refused, 0 when it would not.
// One without any right to write is refused even to the superuser, to whom the system itself would
// refuse nothing.
int WriteRefusal(const QByteArray& path);

// A new file that is written piece by piece, over any old one of that path. Each step returns 0 or
// an errno.
class NewFile {
 public:
  // Nothing is made before Create. The end closes the file and leaves it where it is.
  explicit NewFile(QByteArray path) : path_(std::move(path)) {}
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  int Create(unsigned mode);  // 0 for the usual mode
  // All of the bytes, behind what was written before; what was written reaches the disk.
  int Write(QByteArrayView bytes);
  int Sync();
  void SetTime(qint64 seconds);  // since 1970; a file system that keeps no times is no fault

 private:
  const QByteArray path_;
  qintptr handle_ = -1;
};

}  // namespace kladez::syscalls
