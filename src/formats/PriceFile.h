// A price list, <warehouse>\PRICE\NNNN.prc, and the clipboard of price lists, temp.prc: rows in the
// order of the screen. A group is one line that begins with a blank; goods are four lines:
//
//   Чай чёрный, 100 г
//   пач.
//   45.00                purchase price (readers take the directory's instead)
//   60.00                sale price
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "formats/GoodsFile.h"
#include "formats/TextLines.h"

namespace kladez {

struct PriceRecord {
  QString name;
  QString unit;
  QString purchase;
  QString sale;

  // A group has a name only.
  bool IsGroup() const { return IsGroupName(name); }
  bool operator==(const PriceRecord&) const = default;
};

// Calls visit(name, unit, purchase, sale) with the raw bytes of each record's lines; of a group
// only the name is not empty.
template <typename Visit>
void ForEachPrice(QByteArrayView bytes, Visit&& visit) {
  for (LineReader reader(bytes); !reader.AtEnd();) {
    const QByteArrayView name = reader.NextRaw();
    if (name.startsWith(' ')) {
      visit(name, QByteArrayView(), QByteArrayView(), QByteArrayView());
      continue;
    }
    const QByteArrayView unit = reader.NextRaw();
    const QByteArrayView purchase = reader.NextRaw();
    visit(name, unit, purchase, reader.NextRaw());
  }
}

// All texts as they stand, number or not; the last record of a cut file has empty fields.
std::vector<PriceRecord> ReadPrices(QByteArrayView bytes);
QByteArray WritePrices(const std::vector<PriceRecord>& records);
// Adds the lines of one record.
void AddPrice(LineWriter& writer, const PriceRecord& record);

}  // namespace kladez
