// The warehouses of a Database: склад.usd, one name a line, and one directory each. A warehouse's
// name is the name of its directory.
#pragma once

#include <QStringList>

#include "books/store/DataDir.h"
#include "books/store/SaveSet.h"
#include "books/store/Session.h"

namespace kladez {

// The entry of a selector that means all warehouses together; never the name of one.
inline constexpr QStringView kAllWarehouses = u"ВСЕ СКЛАДЫ";

// Whether the name holds one of the characters \ / : * ? " < > | that no warehouse may have.
bool HoldsForbiddenCharacter(QStringView name);

// The list of the warehouses as a screen shows it, filled from the session. Every command throws
// filesystem_error, and nothing has changed then, neither the list nor the disk. A name that is not
// one plain directory name ("..", empty), or means all warehouses, is refused before anything is
// touched.
class WarehouseDirectory {
 public:
  // Both outlive the list; the names are those that the session has.
  WarehouseDirectory(const DataDir& data, Session& session);

  // In the order of the file.
  const QStringList& Names() const { return names_; }
  bool Contains(const QString& name) const { return names_.contains(name); }  // letter case counts

  // Whether a new name waits for Save.
  bool IsChanged() const { return names_ != session_.warehouses; }
  // Whether the file is still the list that the session has.
  bool IsCurrent() const;
  // Reads the file again, for the session too, and loses new names that were not saved.
  void Reload();

  // Makes the directory with all that a new warehouse holds, and writes the list: one save.
  void Create(const QString& name);
  // Renames the directory. The list file and the session keep the old name until Save.
  void Rename(int row, const QString& name);
  // Deletes the directory with all that it holds, and writes the list: one save. The first
  // warehouse is never deleted.
  void Delete(int row);
  // Writes the list file, and gives the session the names.
  void Save();

 private:
  void TakeOver(const QStringList& names);

  // Throws filesystem_error where the list could not be read when the Database was opened.
  void WriteList(SaveSet& save, const QStringList& names) const;

  const DataDir& data_;
  Session& session_;
  QStringList names_;
};

}  // namespace kladez
