// Backup and restore. A backup folder "Копия БД Kladez от 22-11-26" holds the chosen Databases with
// their descriptors and the index archive.idb (see formats/DescriptorFile.h). A restore brings them
// back as new Databases beside the existing ones.
//
// Both are whole or nothing: a backup grows under a name that nobody takes for a good one and gets
// its own name at the end; a restored tree grows aside and joins the catalogue in one save.
#pragma once

#include <QDate>
#include <QString>
#include <vector>

#include "books/store/Catalogue.h"
#include "books/store/DataDir.h"
#include "formats/Progress.h"

namespace kladez {

// The path of the machine at which a backup of the day lies in a folder of the machine.
QString BackupTarget(const QString& folder, QDate day);

// Copies the entries into a new folder of the day. Throws filesystem_error with the file at fault,
// and WorkCancelled. Nothing stays then; a backup that stands there already
// is never touched, and is one of the faults.
void MakeBackup(const DataDir& data, const std::vector<CatalogueEntry>& chosen,
                const QString& folder, QDate day, const Progress& progress = {});

// Whether a folder of the machine holds archive.idb, by which a backup is known. No folder, no
// backup.
bool IsBackupFolder(const QString& folder);

// Brings the entries of a backup (ListDatabases of its folder) back one after the other, each under
// the next free number and with " (копия)" after its name. Throws filesystem_error, and
// WorkCancelled: those that were finished stay, of the one at fault nothing does.
void RestoreDatabases(const DataDir& data, const DataDir& backup,
                      const std::vector<CatalogueEntry>& chosen, const Progress& progress = {});

// Removes what a restore left that a crash ended. Call it after SaveSet::Recover, before the first
// restore. Throws filesystem_error.
void RemoveUnfinishedRestore(const DataDir& data);

}  // namespace kladez
