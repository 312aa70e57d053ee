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

namespace kladez {

// A row that begins with a blank is a group, in every list and file of the system.
inline bool IsGroupName(QStringView name) { return name.startsWith(u' '); }

struct GoodsRecord {
  QString name;  // of a group with its leading blank
  QString country;
  QString declaration;
  QString unit;
  QString price;  // number text of the purchase price

  bool IsGroup() const { return IsGroupName(name); }
  bool operator==(const GoodsRecord&) const = default;
};

// A price that is no number reads as "0"; an item cut off by the end of the file keeps what it has.
std::vector<GoodsRecord> ReadGoods(QByteArrayView bytes);
QByteArray WriteGoods(const std::vector<GoodsRecord>& records);

}  // namespace kladez
