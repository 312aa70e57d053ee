#include "books/store/TreeCopy.h"

#include <sys/stat.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "books/store/Errors.h"
#include "books/store/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

// A directory or an empty file takes its time too.
constexpr qint64 kWorkPerPiece = 4096;

[[noreturn]] void Fail(const QString& doing, const QByteArray& path, int error) {
  ThrowFileError(doing, QFile::decodeName(path), error);
}

fs::path PathOf(const QByteArray& path) { return fs::path(path.toStdString()); }

std::vector<QByteArray> NamesIn(const QByteArray& directory) {
  std::error_code error;
  std::vector<QByteArray> names;
  fs::directory_iterator entry(PathOf(directory), error);
  while (!error && entry != fs::directory_iterator()) {
    names.push_back(QByteArray::fromStdString(entry->path().filename().string()));
    entry.increment(error);
  }
  if (error) Fail(u"Не удалось прочитать каталог"_s, directory, error.value());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

void TreeCopy::AddFile(const QByteArray& from, const QByteArray& to) {
  std::error_code error;
  const auto status = fs::symlink_status(PathOf(from), error);
  if (error) Fail(u"Не удалось прочитать файл"_s, from, error.value());
  if (fs::is_symlink(status)) Fail(u"Ссылки не копируются"_s, from, ELOOP);
  if (!fs::is_regular_file(status)) Fail(u"Это не файл, он не копируется"_s, from, EINVAL);
  const auto bytes = static_cast<qint64>(fs::file_size(PathOf(from), error));
  if (error) Fail(u"Не удалось прочитать файл"_s, from, error.value());
  pieces_.push_back({from, to, bytes + kWorkPerPiece});
  size_ += pieces_.back().size;
}

void TreeCopy::AddTree(const QByteArray& from, const QByteArray& to) {
  pieces_.push_back({{}, to, kWorkPerPiece});
  size_ += kWorkPerPiece;
  for (const QByteArray& name : NamesIn(from)) {
    const QByteArray path = from + '/' + name;
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(PathOf(path), error))) {
      AddTree(path, to + '/' + name);
    } else {
      AddFile(path, to + '/' + name);
    }
  }
}

void TreeCopy::Run(const Progress& progress) const {
  qint64 done = 0;
  for (const Piece& piece : pieces_) {
    if (piece.from.isEmpty()) {
      if (const int error = syscalls::MakeDirectory(piece.to)) {
        Fail(u"Не удалось создать каталог"_s, piece.to, error);
      }
    } else if (const int error = syscalls::CopyNewFile(piece.from, piece.to)) {
      Fail(u"Не удалось скопировать файл"_s, piece.from, error);
    }
    done += piece.size;
    progress.Tell(static_cast<double>(done) / static_cast<double>(size_));
  }
  // An empty file has no byte that could have failed to be written.
  for (const Piece& piece : pieces_) {
    struct stat status;
    if (const int error = syscalls::Look(piece.to, &status)) {
      Fail(u"В копии нет файла"_s, piece.to, error);
    }
  }
}

}  // namespace kladez
