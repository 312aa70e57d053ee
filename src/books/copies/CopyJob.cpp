#include "books/copies/CopyJob.h"

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>

#include "books/copies/Archive.h"
#include "books/copies/CopyFolder.h"
#include "books/store/Errors.h"
#include "books/store/ReadAhead.h"
#include "formats/DatabaseFiles.h"
#include "formats/DocumentFile.h"
#include "formats/GoodsFile.h"
#include "formats/Ordering.h"
#include "system/OpenFile.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using syscalls::OpenFile;

constexpr qint64 kLargestFile = qint64{1} << 30;
constexpr qint64 kNanoseconds = 1'000'000'000;  // of a second

[[noreturn]] void FailReading(const QByteArray& path, int error) {
  ThrowFileError(u"Не удалось прочитать для копии базы"_s, DecodePath(path), error);
}

std::vector<QByteArray> NamesOf(const OpenFile& directory, const QByteArray& path) {
  std::vector<QByteArray> names;
  const int error = directory.ForEachEntry(
      [&](const char* name, FileStatus::Kind) { names.push_back(QByteArray(name)); });
  if (error != 0) FailReading(path, error);
  std::sort(names.begin(), names.end());
  return names;
}

bool IsDocument(const QString& folded) {
  for (const DocumentKind kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    if (folded.endsWith(FoldCase(FormatOf(kind).extension))) return true;
  }
  return false;
}

QByteArray PartOf(const QByteArray& folder) {
  return folder + "/.part-" + QByteArray::number(QCoreApplication::applicationPid());
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
  FileStatus status;
  if (syscalls::Look(path, &status) != 0) {
    kept_[name] = std::nullopt;
  } else if (status.IsFile()) {
    File file{{}, status.modified / kNanoseconds};
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
  OpenFile root;
  if (const int error = root.Open(order_.root)) FailReading(order_.root, error);
  WriteTree(writer, root, order_.descriptor);
  WriteTree(writer, root, order_.tree);
  WriteKept(writer);
  writer.Finish([this](quint64 sum) {
    order_.note.sum = sum;
    return NoteFrame(order_.note);
  });
}

// A file or a directory with all it holds; `name` is its path from the data directory.
void CopyJob::WriteTree(ArchiveWriter& writer, const OpenFile& parent, const QByteArray& name) {
  OpenFile open;
  FileStatus status;
  int error = open.OpenIn(parent, name.constData() + name.lastIndexOf('/') + 1);
  // What was deleted meanwhile has been handed over.
  if (error == ENOENT) return;
  if (error == 0) error = open.Status(&status);
  if (error != 0) FailReading(name, error);
  const qint64 modified = status.modified / kNanoseconds;
  if (status.IsDirectory()) {
    {
      const std::lock_guard lock(mutex_);
      if (kept_.contains(name)) return;  // made after the copy was asked for
    }
    writer.AddDirectory(name, modified);
    WriteDirectory(writer, open, name);
    return;
  }
  if (!status.IsFile()) FailReading(name, EINVAL);
  thread_local File file;
  file.modified = modified;
  if ((error = open.ReadWhole(kLargestFile, file.bytes)) != 0) FailReading(name, error);
  {
    // It may have been written as it was read: the old state was handed over before that.
    const std::lock_guard lock(mutex_);
    if (kept_.contains(name)) return;
    written_.insert(name);
  }
  WriteFile(writer, name, file);
}

void CopyJob::WriteDirectory(ArchiveWriter& writer, const OpenFile& directory,
                             const QByteArray& name) {
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
                   DecodePath(part), EIO);
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
    ThrowFileError(u"Не удалось записать копию базы"_s, DecodePath(file), error);
  }
}

void CopyJob::Count(const QByteArray& name, QByteArrayView bytes) {
  ++order_.note.files;
  const QString folded = FoldCase(DecodePath(name));
  if (IsDocument(folded)) ++order_.note.documents;
  const QString goods = DecodePath(order_.tree) + u'/' + files::kGoods;
  if (folded != FoldCase(QString(goods).replace(u'\\', u'/'))) return;
  ForEachGoods(bytes, [this](const RawGoods& row) { order_.note.goods += !row.IsGroup(); });
}

}  // namespace kladez
