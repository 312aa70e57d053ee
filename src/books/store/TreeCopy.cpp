#include "books/store/TreeCopy.h"

#include <algorithm>
#include <cerrno>

#include "books/store/Errors.h"
#include "system/OpenFile.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// A directory or an empty file takes its time too.
constexpr qint64 kWorkPerPiece = 4096;

[[noreturn]] void Fail(const QString& doing, const QByteArray& path, int error) {
  ThrowFileError(doing, DecodePath(path), error);
}

std::vector<QByteArray> NamesIn(const QByteArray& directory) {
  syscalls::OpenFile open;
  std::vector<QByteArray> names;
  int error = open.Open(directory);
  if (error == 0) {
    error = open.ForEachEntry(
        [&](const char* name, FileStatus::Kind) { names.push_back(QByteArray(name)); });
  }
  if (error != 0) Fail(u"Не удалось прочитать каталог"_s, directory, error);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

void TreeCopy::AddFile(const QByteArray& from, const QByteArray& to) {
  FileStatus status;
  if (const int error = syscalls::LookThroughLinks(from, &status)) {
    Fail(u"Не удалось прочитать файл"_s, from, error);
  }
  if (status.kind == FileStatus::Kind::kLink) Fail(u"Ссылки не копируются"_s, from, ELOOP);
  if (!status.IsFile()) Fail(u"Это не файл, он не копируется"_s, from, EINVAL);
  pieces_.push_back({from, to, status.size + kWorkPerPiece});
  size_ += pieces_.back().size;
}

void TreeCopy::AddTree(const QByteArray& from, const QByteArray& to) {
  pieces_.push_back({{}, to, kWorkPerPiece});
  size_ += kWorkPerPiece;
  for (const QByteArray& name : NamesIn(from)) {
    const QByteArray path = from + '/' + name;
    FileStatus status;
    if (syscalls::LookThroughLinks(path, &status) == 0 && status.IsDirectory()) {
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
    FileStatus status;
    if (const int error = syscalls::Look(piece.to, &status)) {
      Fail(u"В копии нет файла"_s, piece.to, error);
    }
  }
}

}  // namespace kladez
