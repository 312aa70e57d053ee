// The state of the open Database: one for the whole run, filled by OpenDatabase, read by all
// screens. What one screen hands to another (a picked line, the source of a print-out) is a value
// that travels with the call and does not live here.
#pragma once

#include <QString>
#include <QStringList>

#include "books/store/DataDir.h"

namespace kladez {

// The list "Пользователь:" of the catalogue; no choice counts as full rights, so every rule asks
// for the seller only.
enum class UserRole { kNone = -1, kSeller = 0, kDirector = 1 };

struct Session {
  QString basedir;  // "0001\", empty while no Database is open; every path starts with it
  QString rub;      // short name of the main currency, "руб."
  QStringList SkladNames;
  QStringList Post;
  QStringList firma;
  QStringList Klient;
  QString bases_text1;  // path chosen in the catalogue; OpenDatabase makes it the basedir
  UserRole role = UserRole::kNone;

  bool IsOpen() const { return !basedir.isEmpty(); }
  bool IsSeller() const { return role == UserRole::kSeller; }
  // A path inside the open Database, inside one of its warehouses.
  QString Path(QStringView name) const { return basedir + name; }
  QString Path(QStringView warehouse, QStringView name) const {
    return basedir + warehouse + u'\\' + name;
  }
};

// Binds the session to the Database that bases_text1 names, errors ignored step by step; false when
// there is none. A missing currency.usd is written anew, a missing list leaves its list empty.
bool OpenDatabase(Session& session, const DataDir& data);

// Empties the session, as the command that closes a Database does; the role stays.
void CloseDatabase(Session& session);

}  // namespace kladez
