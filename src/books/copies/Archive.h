// The form in which a copy lies on the disk: a tar file with the names as they are, packed by zstd,
// so that "tar --zstd -xf" unpacks it on any machine. Behind it stands the copy's note (CopyNote.h)
// in a frame that unpackers pass over.
//
// A reader trusts nothing: an archive is a file that anybody may have made.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <functional>
#include <memory>

struct archive;

namespace kladez {

class ArchiveWriter {
 public:
  // A new file; its path is absolute and without links. Throws filesystem_error, as all of these.
  explicit ArchiveWriter(const QByteArray& path);
  ~ArchiveWriter();
  ArchiveWriter(const ArchiveWriter&) = delete;
  ArchiveWriter& operator=(const ArchiveWriter&) = delete;

  // Names are relative, their parts divided by slashes; times are seconds since 1970.
  void AddDirectory(const QByteArray& name, qint64 modified);
  void AddFile(const QByteArray& name, qint64 modified, QByteArrayView bytes);
  // The archive is whole; `note` gives what stands behind it once the sum is known.
  void Finish(const std::function<QByteArray(quint64 sum)>& note);

 private:
  struct Output;

  void AddHeader(const QByteArray& name, qint64 modified, bool directory, qsizetype size);
  [[noreturn]] void Fail();

  std::unique_ptr<Output> output_;
  archive* archive_;
  quint64 sum_ = 0;
};

struct ArchivedFile {
  const QByteArray& name;  // without a slash at the end
  bool is_directory;
  qint64 modified;
  QByteArrayView bytes;  // valid during the visit
};

// Beyond these an archive is refused: no Database has as much, and a small file can unpack to any
// size.
struct ArchiveLimits {
  qint64 bytes = qint64{4} << 30;  // of all files together
  qsizetype files = 3'000'000;     // and directories
};

// Visits what an archive holds, in its order, until `visit` says false; gives the sum of all that
// was visited, by which an archive is known to hold what was put in. Throws filesystem_error that
// names `file` where it is cut, damaged or beyond the limits, or holds anything but plain files and
// directories below the directory that it is unpacked in.
quint64 ReadArchive(QByteArrayView bytes, const QByteArray& file,
                    const std::function<bool(const ArchivedFile&)>& visit,
                    const ArchiveLimits& limits = {});

// The bytes of an archive on the disk. Throws filesystem_error.
QByteArray ArchiveBytes(const QByteArray& file);

}  // namespace kladez
