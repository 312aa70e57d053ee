// Small books for commands that write: one Database "Лавка" with two warehouses, two goods in a
// group and one document of each kind.
#pragma once

#include <filesystem>

#include "TempData.h"
#include "books/store/Session.h"

namespace kladez {

// The day of the books.
inline const QDate kBooksDay(2026, 11, 23);
inline const QString kMainWarehouse = u"Главный склад"_s;

// What lies on the disk besides the open Database; most commands have to do with that alone, and
// the books are made anew for each try.
enum class Beside { kNothing, kSecondDatabaseAndBackup };

// Books on a disk of their own: a data directory with an open Database, and a folder for backups.
class FaultBooks {
 public:
  explicit FaultBooks(Beside beside);

  const DataDir& Data() const { return data_; }
  Session& Opened() { return session_; }
  QString Backups() const { return root_.path() + u"/backups"_s; }

  FileTree Tree() const { return TreeBelow(root_.path()); }
  std::filesystem::path Root() const { return root_.path().toStdString(); }
  // What the program does as it starts.
  void Reopen();

 private:
  QTemporaryDir root_;
  DataDir data_;
  Session session_;
};

}  // namespace kladez
