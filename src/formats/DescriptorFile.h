// The descriptor of a Database, NNNN.us beside its directory, and the index of a backup folder,
// archive.idb, which lists the descriptors saved there.
//
//   0001\                  path of the tree, with its backslash
//   Магазин на Садовой     display name
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace kladez {

struct DatabaseDescriptor {
  QString path;
  QString name;

  bool operator==(const DatabaseDescriptor&) const = default;
};

// NNNN.us; missing lines read as empty, lines after the second are passed over.
DatabaseDescriptor ReadDescriptor(QByteArrayView bytes);
QByteArray WriteDescriptor(const DatabaseDescriptor& descriptor);

// Three lines of archive.idb: the descriptor's file name and its two lines.
struct BackupEntry {
  QString file;
  DatabaseDescriptor descriptor;

  bool operator==(const BackupEntry&) const = default;
};

// archive.idb; the last entry of a cut file has empty texts.
std::vector<BackupEntry> ReadBackupIndex(QByteArrayView bytes);
QByteArray WriteBackupIndex(const std::vector<BackupEntry>& entries);

}  // namespace kladez
