// Books in a data directory whose saves are watched, and a state directory of their own.
#pragma once

#include <QFile>

#include "TempData.h"
#include "books/copies/Archive.h"
#include "books/copies/CopyFolder.h"
#include "books/copies/Safekeeping.h"

namespace kladez {

inline const QDateTime kMorning(QDate(2026, 11, 23), QTime(9, 0));

// A data directory with one Database "Лавка" (0001) that has a document, a goods and a ledger.
class CopiesWorld {
 public:
  CopiesWorld() : data_(root_.path() + QStringLiteral("/data")) {
    // Copies go where the program keeps them.
    qputenv("XDG_STATE_HOME", QFile::encodeName(root_.path() + QStringLiteral("/state")));
    base_ = CreateDatabase(data_, QStringLiteral("Лавка"));
    Put("Главный склад\\PRH\\0001.prh",
        "1\r\n23.11.2026\r\nБаза\r\n90.00\r\nнет\r\n"
        "Чай\r\n2\r\nпач.\r\n45.00\r\n");
    Put("SPR\\товар.spr", "Чай\r\nИндия\r\n\r\nпач.\r\n45.00\r\n");
    Put("Главный склад\\товар.usl", "Чай\r\n20\r\nпач.\r\n");
  }

  DataDir& Data() { return data_; }
  QString Path(const char* path) const { return base_ + QString::fromUtf8(path); }
  // A file of the Database, its text in UTF-8; nobody looks on.
  void Put(const char* path, const char* text) {
    QFile file(data_.Resolve(Path(path)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(EncodeText(QString::fromUtf8(text)));
  }
  // One command of a person.
  void Save(const char* path, const char* text, const QString& what = {}, bool copy_first = false) {
    SaveSet save(data_, what);
    save.Write(Path(path), EncodeText(QString::fromUtf8(text)));
    if (copy_first) save.CopyFirst();
    save.Commit();
  }
  QString Text(const char* path) const {
    return DecodeText(data_.ReadIfAny(Path(path)).value_or("<none>"));
  }
  QString RootPath() const { return root_.path(); }
  std::vector<StoredCopy> Copies() const { return ListCopies(CopiesFolder(data_)); }
  // Path to text of all files of a copy.
  static std::map<QString, QString> Contents(const StoredCopy& copy) {
    std::map<QString, QString> files;
    ReadArchive(ArchiveBytes(copy.file), copy.file, [&](const ArchivedFile& file) {
      if (!file.is_directory) files[QFile::decodeName(file.name)] = DecodeText(file.bytes);
      return true;
    });
    return files;
  }

 private:
  struct Root : QTemporaryDir {
    Root() { QDir(path()).mkdir(QStringLiteral("data")); }
  };
  Root root_;
  DataDir data_;
  QString base_;
};

}  // namespace kladez
