// The state of the open Database: one for the whole run, filled by OpenDatabase, read by all
// screens. What one screen hands to another (a picked line, the source of a print-out) is a value
// that travels with the call and does not live here.
#pragma once

#include <QString>
#include <QStringList>
#include <array>

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "formats/PartyFile.h"

namespace kladez {

// The list "Пользователь:" of the catalogue; no choice counts as full rights, so every rule asks
// for the seller only.
enum class UserRole { kNone = -1, kSeller = 0, kDirector = 1 };

struct Session {
  QString base_path;      // "0001\", empty while no Database is open; every path starts with it
  QString currency_name;  // short name of the main currency, "руб."
  QStringList warehouses;
  FileState warehouses_file;  // склад.usd as the warehouses were read from it
  QString chosen_base;        // path chosen in the catalogue; OpenDatabase makes it the base_path
  UserRole role = UserRole::kNone;

  // Whether a Database is open; whether a seller uses it, who sees and may less.
  bool IsOpen() const { return !base_path.isEmpty(); }
  bool IsSeller() const { return role == UserRole::kSeller; }
  // The names of a kind's parties, in the order of their file.
  QStringList& Parties(PartyKind kind) { return parties_[static_cast<size_t>(kind)]; }
  const QStringList& Parties(PartyKind kind) const { return parties_[static_cast<size_t>(kind)]; }
  // A path inside the open Database, inside one of its warehouses.
  QString Path(QStringView name) const { return base_path + name; }
  QString Path(QStringView warehouse, QStringView name) const {
    return base_path + warehouse + u'\\' + name;
  }

 private:
  std::array<QStringList, kPartyKinds.size()> parties_;
};

// Binds the session to the Database that chosen_base names, errors ignored step by step; false when
// there is none. A missing currency.usd is written anew; a list that can't be read is left empty
// and told (see Notes.h).
bool OpenDatabase(Session& session, const DataDir& data);

// Reads the names of its warehouses. Throws filesystem_error, the names as before then.
void ReadWarehouses(Session& session, const DataDir& data);

// The stock ledger of a warehouse, "0001\Главный склад\товар.usl".
QString LedgerPath(const Session& session, const QString& warehouse);

// Empties the session, as the command that closes a Database does; the role stays.
void CloseDatabase(Session& session);

}  // namespace kladez
