// The goods directory as a list of rows that lie in the bytes of its file until they are asked for.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "formats/FileRows.h"
#include "formats/GoodsFile.h"

namespace kladez {

struct GoodsSource {
  using Record = GoodsRecord;
  using Place = quint32;  // where the record begins

  QByteArray bytes;

  // The record at a place, as views of the bytes, and as texts.
  RawGoods Raw(Place place) const;
  GoodsRecord Make(Place place) const;
  bool operator==(const GoodsSource& other) const { return bytes.isSharedWith(other.bytes); }
};

class GoodsRows : public FileRows<GoodsSource> {
 public:
  using FileRows::FileRows;
  // The records as ReadGoods reads them.
  explicit GoodsRows(const QByteArray& bytes);
  // The goods alone, by name.
  static GoodsRows ByName(const QByteArray& bytes);

  // Whether the row is a group; it must be there, here and below.
  bool IsGroup(size_t row) const;
  // One field of a row.
  QString Text(size_t row, QString GoodsRecord::*field) const;
  // The first row that is the record, or is goods of the name; -1 where there is none.
  int RowOf(const GoodsRecord& record) const;
  int RowOfGoods(QStringView name) const;
  int FirstGoods() const;

  // The file, the same as WriteGoods makes it of the records.
  QByteArray Bytes() const;

 private:
  template <typename OfRaw, typename OfRecord>
  int FirstRow(OfRaw of_raw, OfRecord of_record) const;
};

}  // namespace kladez
