#include "books/stock/LineNotes.h"

#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString Amount(double quantity, const QString& unit) {
  return unit.isEmpty() ? GeneralText(quantity) : GeneralText(quantity) + u' ' + unit;
}

}  // namespace

LineNote NoteOnHand(double on_hand, QStringView quantity, const QString& unit, Flow flow) {
  LineNote note{.text = u"На складе "_s + Amount(on_hand, unit)};
  const double asked = ParseStrict(quantity).value_or(0);
  // As texts, so that what 0.1 and 0.2 leave of 0.3 is nothing.
  const double lacking = RoundGeneral(asked - on_hand);
  if (flow == Flow::kOut && asked > 0 && lacking > 0) {
    note.text += u", не хватает "_s + Amount(lacking, unit);
    note.amiss = true;
  }
  return note;
}

LineNote NoteOnPrice(QStringView price, QStringView cost, CostIs cost_is) {
  const auto asked = ParseStrict(price);
  const double paid = RoundMoney(NumberOr(cost));
  if (!asked || paid <= 0 || RoundMoney(*asked) > paid) return {};
  QString text = RoundMoney(*asked) < paid ? u"Цена ниже закупочной"_s : u"Цена равна закупочной"_s;
  if (cost_is == CostIs::kShown) text += u" ("_s + FormatMoney(paid) + u')';
  return {.text = text, .amiss = true};
}

}  // namespace kladez
