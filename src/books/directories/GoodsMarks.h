// The ticks of the goods lists: the file "marked" in a Database's root, one name a line, common to
// all warehouses and price lists.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <vector>

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "books/store/Session.h"
#include "formats/GoodsRows.h"

namespace kladez {

// The path of `marked` in the open Database.
QString MarksPath(const Session& session);

// The names of the file; none when it can't be read, and then `file` lets nobody write over it.
QStringList ReadMarks(const DataDir& data, const Session& session, FileState& file);

// The ticks of the rows as the names set them one after the other: each ticks the first row whose
// text begins with it, and the first name that finds no row ends the ticking.
std::vector<bool> TickRows(const GoodsRows& rows, const QStringList& names);

// The file's contents: the names of the ticked rows in the order of the list.
QByteArray WriteMarks(const GoodsRows& rows, const std::vector<bool>& ticks);

}  // namespace kladez
