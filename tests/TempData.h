// A data directory that lives as long as a test, with helpers to look at its files by whole bytes.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <map>
#include <string>

#include "books/store/DataDir.h"
#include "formats/TextLines.h"

namespace kladez {

using namespace Qt::StringLiterals;  // for all tests

// Lines or names in one text, parted by bars: u"Чай|3|шт."_lines.
inline QStringList operator""_lines(const char16_t* text, size_t size) {
  return QString::fromUtf16(text, static_cast<qsizetype>(size)).split(u'|');
}

// Puts a file there (directories made as needed); `path` is a path of the system.
inline void PutFile(const DataDir& data, const QString& path, const QByteArray& bytes) {
  const QString file = data.Resolve(path);
  QDir().mkpath(QFileInfo(file).path());
  QFile out(file);
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(bytes);
}

// Every file and directory, relative path to bytes; directories end in "/".
using FileTree = std::map<std::string, std::string>;
inline FileTree TreeBelow(const QString& root) {
  FileTree tree;
  QDirIterator walk(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString path = walk.next();
    const std::string name = path.mid(root.size() + 1).toStdString();
    if (walk.fileInfo().isDir()) {
      tree[name + "/"] = "";
      continue;
    }
    QFile file(path);
    tree[name] = file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "<unreadable>";
  }
  return tree;
}

class TempData {
 public:
  TempData() : data_(directory_.path()) {}

  const DataDir& Data() const { return data_; }
  QString Root() const { return data_.Root(); }

  void Put(const QString& path, const QByteArray& bytes) const { PutFile(data_, path, bytes); }
  void PutLines(const QString& path, const QStringList& lines) const {
    Put(path, EncodeLines(lines));
  }
  // For calls of the system.
  QByteArray MachinePath(const QString& path) const {
    return QFile::encodeName(data_.Resolve(path));
  }
  QByteArray Bytes(const QString& path) const { return data_.ReadIfAny(path).value_or("<none>"); }
  QStringList Lines(const QString& path) const { return DecodeLines(Bytes(path)); }

  FileTree Tree() const { return TreeBelow(Root()); }

 private:
  QTemporaryDir directory_;
  DataDir data_;
};

}  // namespace kladez

// Texts of failed comparisons, readable.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
