#include "books/directories/GoodsExtras.h"

#include <algorithm>

#include "books/store/OwnRecordsFile.h"
#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kLongestCode = 20;

const QString kBarcode = u"Штрихкод"_s;
const QString kMinimum = u"Минимум"_s;

// From the right the digits count three and one times by turns, the last one once.
bool CheckDigitFits(const QString& code) {
  int sum = 0;
  for (qsizetype i = 0; i < code.size(); ++i) {
    const int weight = (code.size() - i) % 2 == 0 ? 3 : 1;
    sum += weight * (code[i].unicode() - u'0');
  }
  return sum % 10 == 0;
}

}  // namespace

GoodsExtras ExtrasOf(const OwnRecords& records, const QString& goods) {
  GoodsExtras extras{records.Value(goods, kBarcode), records.Value(goods, kMinimum)};
  if (NumberOr(extras.minimum) <= 0) extras.minimum.clear();
  return extras;
}

void SetExtras(OwnRecords& records, const QString& goods, const GoodsExtras& extras) {
  records.Set(goods, kBarcode, extras.barcode);
  records.Set(goods, kMinimum, extras.minimum);
}

QString BarcodeFault(const QString& barcode) {
  const bool digits =
      std::all_of(barcode.begin(), barcode.end(), [](QChar c) { return u'0' <= c && c <= u'9'; });
  if (!digits) return u"В штрихкоде бывают только цифры"_s;
  if (barcode.size() > kLongestCode) return u"Штрихкод длиннее 20 цифр"_s;
  const bool checked = barcode.size() == 8 || barcode.size() == 12 || barcode.size() == 13;
  if (checked && !CheckDigitFits(barcode)) {
    return u"Контрольная цифра штрихкода неверна: проверьте, нет ли в нём опечатки"_s;
  }
  return {};
}

QString BarcodeKey(const QString& barcode) {
  return barcode.size() == 12 ? u'0' + barcode : barcode;
}

bool IsSameBarcode(const QString& a, const QString& b) {
  return !a.isEmpty() && BarcodeKey(a) == BarcodeKey(b);
}

QString GoodsOfBarcode(const OwnRecords& records, const QString& barcode) {
  for (const QString& name : records.Names()) {
    if (IsSameBarcode(records.Value(name, kBarcode), barcode)) return name;
  }
  return {};
}

QString FindByBarcode(const DataDir& data, const Session& session, const QString& barcode) {
  return GoodsOfBarcode(OwnRecordsFile(data, session.Path(files::kGoodsExtras)).records, barcode);
}

}  // namespace kladez
