// Records for what the told files have no field for, in the folder kladez of a Database: named
// texts that are kept by the exact name of what they belong to. A record is the name, a line for
// each field's name and value by turns, and an empty line; one more empty line ends the file, so
// that a file which was cut is known.
//
//   Рога и копыта
//   Скидка, %
//   5
//   Цены
//   Опт
//
//
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

namespace kladez {

class OwnRecords {
 public:
  // No name has a record.
  bool IsEmpty() const { return records_.empty(); }
  // The names that have a record, in the order of the file (by code).
  QStringList Names() const;
  // A field's text, empty where there is no such field or record.
  QString Value(const QString& name, const QString& field) const;
  // An empty text takes the field away, a record without fields is none. Without a name or a
  // field's name nothing is kept.
  void Set(const QString& name, const QString& field, const QString& value);

  // What a list's rows were called when it was read (empty: not there yet) and are called now
  // (empty: deleted). Rows change names all at once, so that two may swap theirs; where two rows
  // come to one name, the first has the record. Names that no row had stay as they are.
  struct Renaming {
    QString was;
    QString is;
  };
  // Renames and deletes records as the rows of the list were.
  void Follow(const std::vector<Renaming>& rows);

  bool operator==(const OwnRecords&) const = default;

 private:
  friend std::optional<OwnRecords> ReadOwnRecords(QByteArrayView bytes);
  friend QByteArray WriteOwnRecords(const OwnRecords& records);

  using Fields = std::map<QString, QString>;
  std::map<QString, Fields> records_;
};

// Never fails: nothing where the file is cut or has lines after its end. A name or field that comes
// twice counts as it came first.
std::optional<OwnRecords> ReadOwnRecords(QByteArrayView bytes);
// Throws std::system_error for a character that Windows-1251 lacks.
QByteArray WriteOwnRecords(const OwnRecords& records);

}  // namespace kladez
