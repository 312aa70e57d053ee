#include "formats/DescriptorFile.h"

#include "formats/TextLines.h"

namespace kladez {

DatabaseDescriptor ReadDescriptor(QByteArrayView bytes) {
  LineReader reader(bytes);
  QString path = reader.Next();
  return {std::move(path), reader.Next()};
}

QByteArray WriteDescriptor(const DatabaseDescriptor& descriptor) {
  return EncodeLines({descriptor.path, descriptor.name});
}

std::vector<BackupEntry> ReadBackupIndex(QByteArrayView bytes) {
  std::vector<BackupEntry> entries;
  for (LineReader reader(bytes); !reader.AtEnd();) {
    BackupEntry& entry = entries.emplace_back();
    entry.file = reader.Next();
    entry.descriptor.path = reader.Next();
    entry.descriptor.name = reader.Next();
  }
  return entries;
}

QByteArray WriteBackupIndex(const std::vector<BackupEntry>& entries) {
  LineWriter writer;
  for (const BackupEntry& entry : entries) {
    writer.Add(entry.file);
    writer.Add(entry.descriptor.path);
    writer.Add(entry.descriptor.name);
  }
  return writer.Take();
}

}  // namespace kladez
