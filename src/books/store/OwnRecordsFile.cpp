#include "books/store/OwnRecordsFile.h"

#include "books/store/Errors.h"

namespace kladez {

OwnRecordsFile::OwnRecordsFile(const DataDir& data, const QString& path) : path_(path) {
  damaged_ = true;
  IgnoreErrors([&] {
    const QByteArray bytes = ReadIfThere(data, path_, state_);
    const auto found = state_.exists ? ReadOwnRecords(bytes) : OwnRecords();
    damaged_ = !found;
    records = read_ = found.value_or(OwnRecords());
  });
}

void OwnRecordsFile::Gather(SaveSet& save) {
  if (!IsChanged()) return;
  save.MakeDirectory(path_.section(u'\\', 0, -2));
  save.Write(path_, WriteOwnRecords(records), state_);
  read_ = records;
}

}  // namespace kladez
