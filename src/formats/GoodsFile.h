// The goods directory, spr\товар.spr: groups and, under each, its items, in the user's order.
//
//    Чай и кофе                    a group: one line that begins with a blank
//   Чай чёрный, 100 г              an item: name
//   Индия                            country
//   10702030/010105/0001             customs declaration number
//   пач.                             unit
//   45.00                            purchase price
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "formats/TextLines.h"

namespace kladez {

// A row that begins with a blank is a group, in every list and file of the system.
inline bool IsGroupName(QStringView name) { return name.startsWith(u' '); }

struct GoodsRecord {
  QString name;  // of a group with its leading blank
  QString country;
  QString declaration;
  QString unit;
  QString price;  // number text of the purchase price

  // A group has a name only.
  bool IsGroup() const { return IsGroupName(name); }
  bool operator==(const GoodsRecord&) const = default;
};

// The raw bytes of a record's lines, for whoever needs a few fields of a long directory.
struct RawGoods {
  QByteArrayView name;
  QByteArrayView country;
  QByteArrayView declaration;
  QByteArrayView unit;
  QByteArrayView price;  // as it stands, number or not

  // The same of the bytes.
  bool IsGroup() const { return name.startsWith(' '); }
};

// The record that the next lines are; fields that a cut file lacks are empty.
inline RawGoods NextGoods(LineReader& reader) {
  RawGoods goods;
  goods.name = reader.NextRaw();
  if (goods.IsGroup()) return goods;
  for (auto field :
       {&RawGoods::country, &RawGoods::declaration, &RawGoods::unit, &RawGoods::price}) {
    goods.*field = reader.NextRaw();
  }
  return goods;
}

// Calls visit(goods) with each record in the order of the file.
template <typename Visit>
void ForEachGoods(QByteArrayView bytes, Visit&& visit) {
  for (LineReader reader(bytes); !reader.AtEnd();) visit(NextGoods(reader));
}

// A price that is no number reads as "0"; an item cut off by the end of the file keeps what it has.
std::vector<GoodsRecord> ReadGoods(QByteArrayView bytes);
QByteArray WriteGoods(const std::vector<GoodsRecord>& records);
// Adds the lines of one record.
void AddGoods(LineWriter& writer, const GoodsRecord& record);

}  // namespace kladez
