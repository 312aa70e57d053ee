#include "formats/OwnRecords.h"

#include "formats/TextLines.h"

namespace kladez {

QStringList OwnRecords::Names() const {
  QStringList names;
  for (const auto& [name, fields] : records_) names.append(name);
  return names;
}

QString OwnRecords::Value(const QString& name, const QString& field) const {
  const auto record = records_.find(name);
  if (record == records_.end()) return {};
  const auto value = record->second.find(field);
  return value == record->second.end() ? QString() : value->second;
}

void OwnRecords::Set(const QString& name, const QString& field, const QString& value) {
  if (name.isEmpty() || field.isEmpty()) return;
  if (!value.isEmpty()) {
    records_[name][field] = value;
    return;
  }
  const auto record = records_.find(name);
  if (record == records_.end()) return;
  record->second.erase(field);
  if (record->second.empty()) records_.erase(record);
}

void OwnRecords::Follow(const std::vector<Renaming>& rows) {
  const std::map<QString, Fields> before = records_;
  for (const Renaming& row : rows) records_.erase(row.was);
  for (const Renaming& row : rows) {
    const auto record = before.find(row.was);
    if (record != before.end() && !row.is.isEmpty()) records_.insert({row.is, record->second});
  }
}

std::optional<OwnRecords> ReadOwnRecords(QByteArrayView bytes) {
  OwnRecords records;
  LineReader reader(bytes);
  while (!reader.AtEnd()) {
    const QString name = reader.Next();
    if (name.isEmpty()) return reader.AtEnd() ? std::optional(records) : std::nullopt;
    OwnRecords::Fields fields;
    for (;;) {
      if (reader.AtEnd()) return std::nullopt;
      const QString field = reader.Next();
      if (field.isEmpty()) break;
      const QString value = reader.Next();
      if (!value.isEmpty()) fields.insert({field, value});
    }
    if (!fields.empty()) records.records_.insert({name, std::move(fields)});
  }
  return std::nullopt;
}

QByteArray WriteOwnRecords(const OwnRecords& records) {
  LineWriter writer;
  for (const auto& [name, fields] : records.records_) {
    writer.Add(name);
    for (const auto& [field, value] : fields) {
      writer.Add(field);
      writer.Add(value);
    }
    writer.Add({});
  }
  writer.Add({});
  return writer.Take();
}

}  // namespace kladez
