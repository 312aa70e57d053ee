#include "books/copies/Archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <QList>
#include <QtEndian>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "books/store/Errors.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr size_t kRoom = size_t{1} << 18;
constexpr qint64 kLargestArchive = qint64{1} << 30;
constexpr qsizetype kLongestName = 4096;
constexpr qsizetype kDeepest = 16;

using Entry = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;
using Reader = std::unique_ptr<archive, decltype(&archive_read_free)>;

// Never to be changed: the sums of old copies are kept in their notes, and what does not give the
// same is taken for damaged.
quint64 SumOf(QByteArrayView bytes) {
  constexpr qsizetype kWord = sizeof(quint64);
  quint64 sum = 0x9AE16A3B2F90404Fu ^ static_cast<quint64>(bytes.size());
  const auto mix = [&](quint64 word) {
    sum = (sum ^ word) * 0xC3A5C85C97CB3127u;
    sum ^= sum >> 31;
  };
  for (; bytes.size() >= kWord; bytes = bytes.sliced(kWord)) {
    mix(qFromLittleEndian<quint64>(bytes.data()));
  }
  quint64 rest = 0;
  for (qsizetype i = bytes.size(); i-- > 0;) rest = rest << 8 | static_cast<uchar>(bytes[i]);
  mix(rest);
  return sum;
}

// The order counts: what has changed places is not the same.
quint64 SumWith(quint64 sum, const QByteArray& name, QByteArrayView bytes) {
  const quint64 part = SumOf(name) ^ (SumOf(bytes) * 0x9E3779B97F4A7C15u);
  return (sum ^ part) * 0xD6E8FEB86659FD93u + (sum >> 32);
}

[[noreturn]] void Refuse(const QString& why, const QByteArray& file) {
  ThrowFileError(u"Копия базы повреждена или сделана не этой программой: "_s + why,
                 DecodePath(file), EBADMSG);
}

bool IsPlainName(const QByteArray& name) {
  if (name.isEmpty() || name.size() > kLongestName || name.contains('\\')) return false;
  const QList<QByteArray> parts = name.split('/');
  return parts.size() <= kDeepest &&
         std::none_of(parts.begin(), parts.end(), [](const QByteArray& part) {
           return part.isEmpty() || part == "." || part == "..";
         });
}

// The name of a plain file or directory; anything else is refused.
QByteArray PlainName(archive_entry* entry, const QByteArray& file) {
  const auto type = archive_entry_filetype(entry);
  if ((type != AE_IFREG && type != AE_IFDIR) || archive_entry_hardlink(entry) != nullptr ||
      archive_entry_sparse_count(entry) > 0) {
    Refuse(u"в ней есть ссылка или устройство"_s, file);
  }
  const char* raw = archive_entry_pathname(entry);
  QByteArray name(raw);
  if (type == AE_IFDIR && name.endsWith('/')) name.chop(1);
  if (!IsPlainName(name)) Refuse(u"путь в ней ведёт за пределы базы"_s, file);
  return name;
}

// Grows as the bytes come: the length that an entry claims may be any.
void ReadContents(archive* reader, QByteArray& bytes, qint64 most, const QByteArray& file) {
  bytes.resize(0);
  while (true) {
    const void* piece = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    const int result = archive_read_data_block(reader, &piece, &size, &offset);
    if (result == ARCHIVE_EOF) return;
    if (result != ARCHIVE_OK || offset != bytes.size()) Refuse(u"файл в ней не читается"_s, file);
    if (static_cast<qint64>(size) > most - bytes.size()) Refuse(u"она слишком велика"_s, file);
    bytes.append(static_cast<const char*>(piece), static_cast<qsizetype>(size));
  }
}

}  // namespace

struct ArchiveWriter::Output {
  explicit Output(const QByteArray& file) : path(file), new_file(file) {}

  static la_ssize_t Write(archive*, void* self, const void* bytes, size_t size) {
    auto* output = static_cast<Output*>(self);
    output->error = output->new_file.Write(
        QByteArrayView(static_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    return output->error == 0 ? static_cast<la_ssize_t>(size) : -1;
  }

  const QByteArray path;
  syscalls::NewFile new_file;
  int error = 0;  // of the disk
};

ArchiveWriter::ArchiveWriter(const QByteArray& path)
    : output_(std::make_unique<Output>(path)), archive_(nullptr) {
  output_->error = output_->new_file.Create(0600);
  if (output_->error != 0) Fail();
  archive_ = archive_write_new();
  // This form alone keeps the bytes of names, whatever the machine takes them for.
  archive_write_set_format_gnutar(archive_);
  archive_write_add_filter_zstd(archive_);
  // Ten years of documents in less than 10 MB and two seconds. Where the library packs in one
  // thread only, or at the usual level, the copy is as good.
  archive_write_set_filter_option(archive_, "zstd", "compression-level", "6");
  archive_write_set_filter_option(archive_, "zstd", "threads", "2");
  archive_write_set_bytes_per_block(archive_, static_cast<int>(kRoom));
  archive_write_set_bytes_in_last_block(archive_, 1);
  if (archive_write_open(archive_, output_.get(), nullptr, &Output::Write, nullptr) != ARCHIVE_OK) {
    archive_write_free(std::exchange(archive_, nullptr));
    Fail();
  }
}

ArchiveWriter::~ArchiveWriter() {
  if (archive_ == nullptr) return;
  archive_write_fail(archive_);  // what is not finished is not ended either
  archive_write_free(archive_);
}

void ArchiveWriter::Fail() {
  ThrowFileError(u"Не удалось записать копию базы"_s, DecodePath(output_->path),
                 output_->error != 0 ? output_->error : EIO);
}

void ArchiveWriter::AddHeader(const QByteArray& name, qint64 modified, bool directory,
                              qsizetype size) {
  const Entry entry(archive_entry_new(), &archive_entry_free);
  archive_entry_set_pathname(entry.get(), name.constData());
  archive_entry_set_filetype(entry.get(), directory ? AE_IFDIR : AE_IFREG);
  archive_entry_set_perm(entry.get(), directory ? 0700 : 0600);
  archive_entry_set_size(entry.get(), size);
  archive_entry_set_mtime(entry.get(), modified, 0);
  if (archive_write_header(archive_, entry.get()) != ARCHIVE_OK) Fail();
}

void ArchiveWriter::AddDirectory(const QByteArray& name, qint64 modified) {
  AddHeader(name, modified, true, 0);
  sum_ = SumWith(sum_, name, {});
}

void ArchiveWriter::AddFile(const QByteArray& name, qint64 modified, QByteArrayView bytes) {
  AddHeader(name, modified, false, bytes.size());
  const auto size = static_cast<size_t>(bytes.size());
  if (size > 0 &&
      archive_write_data(archive_, bytes.data(), size) != static_cast<la_ssize_t>(size)) {
    Fail();
  }
  sum_ = SumWith(sum_, name, bytes);
}

void ArchiveWriter::Finish(const std::function<QByteArray(quint64 sum)>& note) {
  const int closed = archive_write_close(archive_);
  archive_write_free(std::exchange(archive_, nullptr));
  if (closed != ARCHIVE_OK) Fail();
  output_->error = output_->new_file.Write(note(sum_));
  if (output_->error == 0) output_->error = output_->new_file.Sync();
  if (output_->error != 0) Fail();
}

quint64 ReadArchive(QByteArrayView bytes, const QByteArray& file,
                    const std::function<bool(const ArchivedFile&)>& visit,
                    const ArchiveLimits& limits) {
  const Reader reader(archive_read_new(), &archive_read_free);
  archive_read_support_filter_zstd(reader.get());
  archive_read_support_format_tar(reader.get());
  if (archive_read_open_memory(reader.get(), bytes.data(), static_cast<size_t>(bytes.size())) !=
      ARCHIVE_OK) {
    Refuse(u"это не архив"_s, file);
  }
  quint64 sum = 0;
  qint64 left = limits.bytes;
  QByteArray contents;
  for (qsizetype count = 0;; ++count) {
    archive_entry* entry = nullptr;
    const int result = archive_read_next_header(reader.get(), &entry);
    if (result == ARCHIVE_EOF) return sum;
    if (result != ARCHIVE_OK) Refuse(u"список файлов в ней не читается"_s, file);
    if (count >= limits.files) Refuse(u"в ней слишком много файлов"_s, file);
    const QByteArray name = PlainName(entry, file);
    const bool is_directory = archive_entry_filetype(entry) == AE_IFDIR;
    contents.resize(0);
    if (!is_directory) ReadContents(reader.get(), contents, left, file);
    left -= contents.size();
    sum = SumWith(sum, name, contents);
    if (!visit({name, is_directory, archive_entry_mtime(entry), contents})) return sum;
  }
}

QByteArray ArchiveBytes(const QByteArray& file) {
  QByteArray bytes;
  if (const int error = syscalls::ReadPlainFile(file, kLargestArchive, &bytes)) {
    ThrowFileError(u"Не удалось прочитать копию базы"_s, DecodePath(file), error);
  }
  return bytes;
}

}  // namespace kladez
