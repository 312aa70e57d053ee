#include "books/printing/PaperNote.h"

#include <QStringList>

#include "books/printing/InputError.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

bool HasRate(const PrintParameters& parameters) { return TypedNumber(parameters.rate) != 1; }

QString EffectText(const PaperNote& note) {
  const PrintParameters& parameters = note.parameters;
  QStringList changes;
  if (TypedNumber(parameters.percent) != 100) {
    changes.append(u"цены "_s + parameters.percent + u'%');
  }
  if (TypedNumber(parameters.rate) != 1) changes.append(u"курс $ "_s + parameters.rate);
  if (TypedNumber(parameters.discount) != 0) {
    changes.append(u"скидка "_s + parameters.discount + u'%');
  }
  if (changes.isEmpty()) return {};
  QString text = changes.join(u", "_s);
  text[0] = text[0].toUpper();
  return text + u": сумма "_s + FormatMoney(FieldNumber(note.total)) + u", на бумаге "_s + note.due;
}

QString DifferenceText(const PaperNote& note) {
  PrintParameters waybill = note.parameters;
  waybill.discount = note.waybill_discount;
  waybill.discount_in_prices = false;
  const double asked = FieldNumber(AmountDue(TotalBefore(note.total, waybill), waybill));
  const QString difference = FormatMoney(FieldNumber(note.due) - asked);
  if (difference == u"0.00") return {};
  const bool less = difference.startsWith(u'-');
  return u"На "_s + (less ? difference.mid(1) : difference) + (less ? u" меньше"_s : u" больше"_s) +
         u", чем в накладной"_s;
}

}  // namespace kladez
