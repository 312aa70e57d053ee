#include "books/copies/CopyJob.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <memory>

#include "books/copies/Archive.h"
#include "books/copies/CopyFolder.h"
#include "books/store/Errors.h"
#include "books/store/ReadAhead.h"
#include "books/store/SystemCalls.h"
#include "formats/DatabaseFiles.h"
#include "formats/DocumentFile.h"
#include "formats/GoodsFile.h"
#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kLargestFile = qint64{1} << 30;

[[noreturn]] void FailReading(const QByteArray& path, int error) {
  ThrowFileError(u"Не удалось прочитать для копии базы"_s, QFile::decodeName(path), error);
}

// A descriptor that closes itself.
class OpenFile {
 public:
  OpenFile(int parent, const char* name, int flags)
      : fd_(::openat(parent, name, flags | O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK)) {}
  ~OpenFile() {
    if (fd_ >= 0) ::close(fd_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  int Get() const { return fd_; }

 private:
  const int fd_;
};

std::vector<QByteArray> NamesOf(int directory, const QByteArray& path) {
  const int again = ::openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(again < 0 ? nullptr : ::fdopendir(again),
                                                    &::closedir);
  if (!entries) FailReading(path, errno);
  std::vector<QByteArray> names;
  while (const dirent* entry = ::readdir(entries.get())) {
    const QByteArray name(entry->d_name);
    if (name != "." && name != "..") names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// All that an open file has, in a buffer that many share.
void ReadAll(int fd, qint64 size, QByteArray& bytes, const QByteArray& path) {
  if (size > kLargestFile) FailReading(path, EFBIG);
  bytes.resize(size);
  qint64 done = 0;
  while (done < size) {
    const ssize_t got = ::read(fd, bytes.data() + done, static_cast<size_t>(size - done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) FailReading(path, errno);
    if (got == 0) break;
    done += got;
  }
  bytes.truncate(done);
}

bool IsDocument(const QString& folded) {
  for (const DocumentKind kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    if (folded.endsWith(FoldCase(FormatOf(kind).extension))) return true;
  }
  return false;
}

QByteArray PartOf(const QByteArray& folder) {
  return folder + "/.part-" + QByteArray::number(static_cast<qint64>(::getpid()));
}

}  // namespace

CopyJob::CopyJob(Order order) : order_(std::move(order)), thread_([this] { Run(); }) {}

CopyJob::~CopyJob() {
  if (thread_.joinable()) thread_.join();
}

void CopyJob::Keep(const QByteArray& path) {
  const QByteArray name = path.mid(order_.root.size() + 1);
  if (all_read_ || (name != order_.descriptor && !name.startsWith(QByteArray(order_.tree + '/'))))
    return;
  const std::lock_guard lock(mutex_);
  if (kept_.contains(name)) return;
  struct stat status;
  if (syscalls::Look(path, &status) != 0) {
    kept_[name] = std::nullopt;
  } else if (S_ISREG(status.st_mode)) {
    File file{{}, status.st_mtim.tv_sec};
    if (const int error = syscalls::ReadPlainFile(path, kLargestFile, &file.bytes)) {
      FailReading(path, error);
    }
    kept_[name] = std::move(file);
  }
}

void CopyJob::Wait() {
  if (thread_.joinable()) thread_.join();
  if (error_) std::rethrow_exception(error_);
}

void CopyJob::Run() {
  const QByteArray part = PartOf(order_.folder);
  const QDate today = order_.note.time.date();
  try {
    if (syscalls::Exists(part)) syscalls::Unlink(part);
    Write(part);
    Check(part);
    RemoveOutlivedCopies(order_.folder, today, order_.room);
  } catch (...) {
    error_ = std::current_exception();
    syscalls::Unlink(part);
  }
  try {
    second_reached_ = FillSecondPlace(order_.folder, order_.second, today, order_.room);
  } catch (const std::exception& error) {
    second_fault_ = ErrorText(error);
  }
  over_ = true;
}

void CopyJob::Write(const QByteArray& part) {
  ArchiveWriter writer(part);
  const OpenFile root(AT_FDCWD, order_.root.constData(), O_DIRECTORY);
  if (root.Get() < 0) FailReading(order_.root, errno);
  WriteTree(writer, root.Get(), order_.descriptor);
  WriteTree(writer, root.Get(), order_.tree);
  WriteKept(writer);
  writer.Finish([this](quint64 sum) {
    order_.note.sum = sum;
    return NoteFrame(order_.note);
  });
}

// A file or a directory with all it holds; `name` is its path from the data directory.
void CopyJob::WriteTree(ArchiveWriter& writer, int parent, const QByteArray& name) {
  const OpenFile open(parent, name.constData() + name.lastIndexOf('/') + 1, 0);
  // What was deleted meanwhile has been handed over.
  if (open.Get() < 0 && errno == ENOENT) return;
  struct stat status;
  if (open.Get() < 0 || ::fstat(open.Get(), &status) < 0) FailReading(name, errno);
  if (S_ISDIR(status.st_mode)) {
    {
      const std::lock_guard lock(mutex_);
      if (kept_.contains(name)) return;  // made after the copy was asked for
    }
    writer.AddDirectory(name, status.st_mtim.tv_sec);
    WriteDirectory(writer, open.Get(), name);
    return;
  }
  if (!S_ISREG(status.st_mode)) FailReading(name, EINVAL);
  thread_local File file;
  file.modified = status.st_mtim.tv_sec;
  ReadAll(open.Get(), status.st_size, file.bytes, name);
  {
    // It may have been written as it was read: the old state was handed over before that.
    const std::lock_guard lock(mutex_);
    if (kept_.contains(name)) return;
    written_.insert(name);
  }
  WriteFile(writer, name, file);
}

void CopyJob::WriteDirectory(ArchiveWriter& writer, int directory, const QByteArray& name) {
  const std::vector<QByteArray> names = NamesOf(directory, name);
  ReadAhead ahead(directory, static_cast<qsizetype>(names.size()),
                  [&](qsizetype place) { return names[place].constData(); });
  for (size_t i = 0; i < names.size(); ++i) {
    ahead.Reached(static_cast<qsizetype>(i));
    WriteTree(writer, directory, name + '/' + names[i]);
  }
}

void CopyJob::WriteFile(ArchiveWriter& writer, const QByteArray& name, const File& file) {
  writer.AddFile(name, file.modified, file.bytes);
  Count(name, file.bytes);
}

void CopyJob::WriteKept(ArchiveWriter& writer) {
  const std::lock_guard lock(mutex_);
  for (const auto& [name, file] : kept_) {
    if (file && !written_.contains(name)) WriteFile(writer, name, *file);
  }
  all_read_ = true;
}

// What lies on the disk is read back before it is given its name.
void CopyJob::Check(const QByteArray& part) {
  const QByteArray bytes = ArchiveBytes(part);
  const quint64 sum = ReadArchive(bytes, part, [](const ArchivedFile&) { return true; });
  if (sum != order_.note.sum || ReadNote(bytes) != ReadNote(NoteFrame(order_.note))) {
    ThrowFileError(u"Копия базы читается не так, как была записана; проверьте диск"_s,
                   QFile::decodeName(part), EIO);
  }
  // Nothing has changed since the last copy: one is enough.
  std::vector<StoredCopy> copies = ListCopies(order_.folder);
  std::erase_if(copies, [&](auto& copy) { return copy.note.base != order_.note.base; });
  if (!copies.empty() && copies.back().note.sum == sum) {
    syscalls::Unlink(part);
    return;
  }
  const QByteArray file = NewCopyFile(order_.folder, order_.note);
  int error = syscalls::RenameToNew(part, file);
  if (error == 0) error = syscalls::SyncDirectory(order_.folder);
  if (error != 0) {
    ThrowFileError(u"Не удалось записать копию базы"_s, QFile::decodeName(file), error);
  }
}

void CopyJob::Count(const QByteArray& name, QByteArrayView bytes) {
  ++order_.note.files;
  const QString folded = FoldCase(QFile::decodeName(name));
  if (IsDocument(folded)) ++order_.note.documents;
  const QString goods = QFile::decodeName(order_.tree) + u'/' + files::kGoods;
  if (folded != FoldCase(QString(goods).replace(u'\\', u'/'))) return;
  ForEachGoods(bytes, [this](const RawGoods& row) { order_.note.goods += !row.IsGroup(); });
}

}  // namespace kladez
