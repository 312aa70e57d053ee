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

namespace kladez {

struct PriceRecord {
  QString name;
  QString unit;
  QString purchase;
  QString sale;

  bool IsGroup() const { return IsGroupName(name); }
  bool operator==(const PriceRecord&) const = default;
};

std::vector<PriceRecord> ReadPrices(QByteArrayView bytes);
QByteArray WritePrices(const std::vector<PriceRecord>& records);

}  // namespace kladez
