#include "books/reports/MorningRows.h"

#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using enum MorningRow::Kind;

QString CopyText(const std::optional<QDateTime>& last_copy, QDate today) {
  if (!last_copy) return u"Копий базы ещё нет"_s;
  const QDate day = last_copy->date();
  QString when = DateText(day);
  if (day == today) when = u"сегодня"_s;
  if (day.addDays(1) == today) when = u"вчера"_s;
  return u"Последняя копия базы: "_s + when + last_copy->time().toString(u" в HH:mm"_s);
}

}  // namespace

std::vector<MorningRow> MorningRows(const SalesFigures& figures, const std::vector<LowStock>& low,
                                    const std::optional<QDateTime>& last_copy, QDate today) {
  std::vector<MorningRow> rows;
  rows.push_back({kHeading, u"Сегодня накладных: %1"_s.arg(figures.today.size()), {}});
  for (const ShipmentNote& note : figures.today) {
    rows.push_back({kDocument, u"N %1, %2"_s.arg(note.number, note.party),
                    FormatMoney(NumberOr(note.net_sum)), note.document});
  }
  if (figures.open_count > 0) {
    rows.push_back({kHeading, u"Счета не закрыты: %1"_s.arg(figures.open_count), {}});
  }
  for (const ShipmentNote& note : figures.oldest_open) {
    const qint64 days = note.date.daysTo(today);
    const QString when = days > 0 ? u", %1 дн."_s.arg(days) : u" от "_s + DateText(note.date);
    rows.push_back({kDocument, u"N %1%2, %3"_s.arg(note.number, when, note.party),
                    FormatMoney(NumberOr(note.net_sum)), note.document});
  }
  if (!low.empty()) {
    rows.push_back({kHeading, u"Меньше минимума: %1"_s.arg(low.size()), {}});
  }
  for (const LowStock& goods : low) {
    rows.push_back(
        {kGoods, goods.name,
         u"%1 из %2 %3"_s.arg(GeneralText(goods.on_hand), GeneralText(goods.minimum), goods.unit)});
  }
  rows.push_back({kCopy, CopyText(last_copy, today), {}});
  return rows;
}

}  // namespace kladez
