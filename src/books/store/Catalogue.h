// The catalogue of Databases: whatever descriptors ("0001.us") lie in the data directory at the
// moment. It has no file of its own.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "books/store/DataDir.h"
#include "books/store/SaveSet.h"
#include "books/store/Session.h"
#include "formats/DescriptorFile.h"

namespace kladez {

struct CatalogueEntry {
  QString file;  // "0001.us"
  DatabaseDescriptor descriptor;
};

// All descriptors in the order of their file names; one that can't be read, or is far too long
// for one, is an entry with empty texts. Throws filesystem_error when the directory itself can't be
// listed.
std::vector<CatalogueEntry> ListDatabases(const DataDir& data);

// A number as files are named by it: "0###", "0012".
QString NumberedName(qint64 number);
// The number above one that was read from a name, rounded as the picture "0###" rounds: half away
// from zero. Up to 15 digits count; a larger number is taken for the largest of these.
qint64 NumberAbove(double number);

// The number for a new Database: one above the number of the last descriptor by name, 1 when there
// is none. A gap in the middle is not filled.
qint64 NextDatabaseNumber(const DataDir& data);

// The directory of firms as a new Database has it: one, of which nothing is known.
QByteArray FirstFirmBytes();

// Adds the descriptor and the whole tree of a new Database to a save; gives its path, "0001\".
QString AddNewDatabase(SaveSet& save, qint64 number, const QString& name);
// Adds the directories and files of a new warehouse, `path` being its directory; the save fails
// where something of that name, whatever its letter case, is there already.
void AddNewWarehouse(SaveSet& save, const QString& path);

// The number for a new Database under which nothing stands: NextDatabaseNumber, or where a
// directory or a descriptor has that one (9999 lies behind 10000 in a listing), the next free one
// above the highest number of a descriptor. Throws filesystem_error when the directory can't be
// listed.
qint64 FreeDatabaseNumber(const DataDir& data);

// The first Database with the name of the demonstration books; nothing where there is none that can
// be opened, or where it is open already.
inline constexpr QStringView kDemonstrationName = u"Демонстрационная база";
std::optional<CatalogueEntry> FindDemonstration(const DataDir& data, const Session& session);

// Throws filesystem_error for an entry whose path is not one plain directory name (see
// IsPlainTreePath), or is a link that leads out of the directory of the descriptor: it is listed,
// but neither opened nor deleted, copied or imported from.
void RequirePlainPath(const DataDir& data, const CatalogueEntry& entry);

// Whether the entry is the open Database, however it is spelled; that one can be neither renamed
// nor deleted.
bool IsInUse(const DataDir& data, const Session& session, const CatalogueEntry& entry);

// The row (from 0) that a catalogue list selects: `position` is the setting "FilePos", from 1. One
// past the end, as a creation leaves it, gives the last row, anything further out the first; -1 in
// an empty list. The list of sources for an import takes the count less the position where that is
// past the end, which is no row and so gives the first.
int RowAtPosition(int position, int rows);
int ImportRowAtPosition(int position, int rows);

// Each is one save, and throws filesystem_error. A read-only tree is deleted all the same; one that
// is gone already is no reason to keep its descriptor.
QString CreateDatabase(const DataDir& data, const QString& name);  // gives the path, "0001\"
void RenameDatabase(const DataDir& data, const CatalogueEntry& entry, const QString& name);
void DeleteDatabase(const DataDir& data, const CatalogueEntry& entry);

}  // namespace kladez
