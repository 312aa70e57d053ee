// Backup and restore. A backup folder "Копия БД Kladez от 22-11-26" holds the chosen Databases with
// their descriptors and the index archive.idb (see formats/DescriptorFile.h). A restore brings them
// back as new Databases beside the existing ones.
//
// Both are whole or nothing: a backup grows under a name that nobody takes for a good one and gets
// its own name at the end; a restored tree grows aside and joins the catalogue in one save.
#pragma once

#include <QDate>
#include <QString>
#include <functional>
#include <vector>

#include "books/store/Catalogue.h"
#include "books/store/DataDir.h"

namespace kladez {

// Told how much of the work is done, from 0 to 1; false stops it.
using CopyProgress = std::function<bool(double done)>;

// The path of the machine at which a backup of the day lies in a folder of the machine.
QString BackupTarget(const QString& folder, QDate day);

// Copies the entries into a new folder of the day; false when `progress` stopped it. Throws
// filesystem_error with the file at fault. Nothing stays then; a backup that stands there already
// is never touched, and is one of the faults.
bool MakeBackup(const DataDir& data, const std::vector<CatalogueEntry>& chosen,
                const QString& folder, QDate day, const CopyProgress& progress = {});

// Whether a folder of the machine holds archive.idb, by which a backup is known. No folder, no
// backup.
bool IsBackupFolder(const QString& folder);

// Brings the entries of a backup (ListDatabases of its folder) back one after the other, each under
// the next free number and with " (копия)" after its name; false when `progress` stopped it. Those
// that were finished stay, of the one at fault nothing does. Throws filesystem_error.
bool RestoreDatabases(const DataDir& data, const DataDir& backup,
                      const std::vector<CatalogueEntry>& chosen, const CopyProgress& progress = {});

// Removes what a restore left that a crash ended. Call it after SaveSet::Recover, before the first
// restore. Throws filesystem_error.
void RemoveUnfinishedRestore(const DataDir& data);

}  // namespace kladez
