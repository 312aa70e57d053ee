// What belongs to goods and has no place in the goods directory's file: the barcode and the least
// quantity to have on hand, kept beside the told files (OwnRecords.h) under the goods' exact name.
//
//   Чай чёрный, 100 г
//   Минимум
//   10
//   Штрихкод
//   4601234567893
//
#pragma once

#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/OwnRecords.h"

namespace kladez {

struct GoodsExtras {
  QString barcode;  // digits
  QString minimum;  // number text, of all warehouses together

  bool operator==(const GoodsExtras&) const = default;
};

// A minimum that is no number above zero is none.
GoodsExtras ExtrasOf(const OwnRecords& records, const QString& goods);
void SetExtras(OwnRecords& records, const QString& goods, const GoodsExtras& extras);

// Why the text is no barcode; empty where it is one, or is empty. Codes of 8, 12 or 13 digits are
// EAN-8, UPC-A and EAN-13, and their last digit must fit the others; a shop's own codes may have
// any other length up to 20.
QString BarcodeFault(const QString& barcode);

// What two texts of one code have in common: a UPC-A is the EAN-13 that has a zero before it.
QString BarcodeKey(const QString& barcode);
bool IsSameBarcode(const QString& a, const QString& b);
// The goods that have the code; empty where none have.
QString GoodsOfBarcode(const OwnRecords& records, const QString& barcode);

// The same in the open Database; empty too where the file is missing or damaged. Never throws.
QString FindByBarcode(const DataDir& data, const Session& session, const QString& barcode);

}  // namespace kladez
