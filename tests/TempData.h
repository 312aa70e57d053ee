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

class TempData {
 public:
  TempData() : data_(directory_.path()) {}

  const DataDir& Data() const { return data_; }
  QString Root() const { return data_.Root(); }

  // Puts a file there (directories made as needed); `path` is a path of the system.
  void Put(const QString& path, const QByteArray& bytes) const {
    const QString file = data_.Resolve(path);
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
  }
  void PutLines(const QString& path, const QStringList& lines) const {
    Put(path, EncodeLines(lines));
  }
  // For calls of the system.
  QByteArray MachinePath(const QString& path) const {
    return QFile::encodeName(data_.Resolve(path));
  }
  QByteArray Bytes(const QString& path) const { return data_.ReadIfAny(path).value_or("<none>"); }
  QStringList Lines(const QString& path) const { return DecodeLines(Bytes(path)); }

  // Everything below the root: relative path to bytes; directories end in "/".
  std::map<std::string, std::string> Tree() const {
    std::map<std::string, std::string> tree;
    QDirIterator walk(Root(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
      const QString path = walk.next();
      const std::string name = path.mid(Root().size() + 1).toStdString();
      if (walk.fileInfo().isDir()) {
        tree[name + "/"] = "";
        continue;
      }
      QFile file(path);
      tree[name] = file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "<unreadable>";
    }
    return tree;
  }

 private:
  QTemporaryDir directory_;
  DataDir data_;
};

}  // namespace kladez

// Texts of failed comparisons, readable.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
