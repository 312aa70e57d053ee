#include "books/reports/SalesFigures.h"

#include <algorithm>

#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;

class FigureReader {
 public:
  FigureReader(QDate today, SalesFigures& figures)
      : today_(today), open_(EncodeText(u"нет")), figures_(figures) {}

  void Read(const QString& warehouse, const ScannedDocument& document) {
    const auto date = document.Date();
    if (!date) return;
    if (!first_day_) first_day_ = date;
    if (*date != *first_day_) figures_.has_several_days = true;
    AddSum(*date, document);
    if (*date == today_) {
      figures_.today.push_back(NoteOf(*date, warehouse, document));
    } else if (document.Head(&H::closed) == open_) {
      AddOpen(*date, warehouse, document);
    }
  }

 private:
  void AddSum(QDate date, const ScannedDocument& document) {
    if (date.year() == today_.year() - 1 && date.month() == today_.month()) {
      const auto day = static_cast<size_t>(date.day() - 1);
      std::vector<double>& year_ago = figures_.by_day.year_ago;
      if (day < year_ago.size()) year_ago[day] += NumberOr(document.Head(&H::net_sum));
    }
    if (date.year() != today_.year()) return;
    const double total = NumberOr(document.Head(&H::net_sum));
    figures_.year += total;
    if (date.month() != today_.month()) return;
    figures_.month += total;
    figures_.by_day.Cell(date.day() - 1, 0) += total;
    if (date.day() == today_.day()) figures_.day += total;
  }

  // Texts are made of the few only that will be shown.
  void AddOpen(QDate date, const QString& warehouse, const ScannedDocument& document) {
    std::vector<ShipmentNote>& oldest = figures_.oldest_open;
    ++figures_.open_count;
    const auto place =
        std::upper_bound(oldest.begin(), oldest.end(), date,
                         [](QDate day, const ShipmentNote& note) { return day < note.date; });
    const bool full = oldest.size() == SalesFigures::kMostOpen;
    if (full && place == oldest.end()) return;
    oldest.insert(place, NoteOf(date, warehouse, document));
    if (full) oldest.pop_back();
  }

  static ShipmentNote NoteOf(QDate date, const QString& warehouse,
                             const ScannedDocument& document) {
    return {.document = {DocumentKind::kShipment, warehouse, document.File()},
            .date = date,
            .number = DecodeText(document.Head(&H::number)),
            .party = DecodeText(document.Head(&H::party)),
            .net_sum = ToNumberOr(DecodeText(document.Head(&H::net_sum)))};
  }

  const QDate today_;
  const QByteArray open_;
  SalesFigures& figures_;
  std::optional<QDate> first_day_;
};

}  // namespace

SalesFigures CollectSalesFigures(const DataDir& data, const Session& session, QDate today,
                                 const Progress& progress) {
  SalesFigures figures;
  figures.by_day = NumberedChartGrid(
      u"График продаж за "_s + MonthName(today.month()) + u' ' + GeneralText(today.year()),
      today.daysInMonth(), {u"Реализация"_s});
  figures.by_day.unit = session.currency_name;
  figures.by_day.year_ago.resize(static_cast<size_t>(today.daysInMonth()));
  FigureReader reader(today, figures);
  const double share = 1.0 / static_cast<double>(std::max<qsizetype>(1, session.warehouses.size()));
  double done = 0;
  for (const QString& warehouse : session.warehouses) {
    ScanWarehouses(data, session, {warehouse}, DocumentKind::kShipment, Unreadable::kPassOver,
                   progress.Piece(done, done + share),
                   [&](const ScannedDocument& document) { reader.Read(warehouse, document); });
    done += share;
  }
  EndAtToday(figures.by_day, today.day());
  return figures;
}

}  // namespace kladez
