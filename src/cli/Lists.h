// The lists and reports of a Database as tables, each known by a word of the command line.
#pragma once

#include <QDate>
#include <QStringList>

#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/tables/Table.h"

namespace kladez {

// What a list is asked for, as far as it has it.
struct ListWish {
  QString warehouse;  // one, or kAllWarehouses
  QString prices;     // the name of a price list
  QDate from;         // both days included; none: all of them
  QDate to;
};

// "goods", "stock" and so on; the table of one. Throws WrongWords for a word that names none, or a
// warehouse or price list that is not there; what the books throw.
QStringList ListNames();
Table ListOf(const QString& name, const DataDir& data, const Session& session,
             const ListWish& wish);

}  // namespace kladez
