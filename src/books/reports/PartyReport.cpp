#include "books/reports/PartyReport.h"

#include <algorithm>

#include "books/stock/DocumentBook.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextPool.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;
using L = DocumentLine;

struct PartySums {
  QString name{};
  int documents = 0;
  double gross = 0;  // before the discount
  double sum = 0;
  double cost = 0;
  QDate last{};
};

void AddMoney(double& sum, double value) { sum = RoundMoney(sum + value); }

double CostOf(ScannedDocument& document) {
  double cost = 0;
  while (document.NextLine()) {
    AddMoney(cost, NumberOr(document.Line(&L::quantity)) * NumberOr(document.Line(&L::cost)));
  }
  return cost;
}

// By sum, the largest first, then by name.
std::vector<PartySums> CollectParties(DocumentKind kind, const DataDir& data,
                                      const Session& session, const ReportScope& scope,
                                      const Progress& progress) {
  TextPool names;
  std::vector<PartySums> parties;
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date || !document.Has(BookOf(kind).total)) return;
    if (!scope.period.Passes(DayKeyOf(*date))) return;
    const auto number = static_cast<size_t>(names.Add(document.Head(&H::party)));
    if (number == parties.size()) parties.push_back({DecodeText(document.Head(&H::party))});
    PartySums& party = parties[number];
    ++party.documents;
    AddMoney(party.gross, NumberOr(document.Head(&H::sum)));
    AddMoney(party.sum, NumberOr(document.Head(BookOf(kind).total)));
    if (kind == DocumentKind::kShipment) AddMoney(party.cost, CostOf(document));
    if (!party.last.isValid() || party.last < *date) party.last = *date;
  };
  ScanWarehouses(data, session, scope.Warehouses(session), kind, Unreadable::kPassOver, progress,
                 visit);
  std::sort(parties.begin(), parties.end(), [](const PartySums& a, const PartySums& b) {
    return a.sum != b.sum ? a.sum > b.sum : OrderKey(a.name) < OrderKey(b.name);
  });
  return parties;
}

PartySums TotalOf(const std::vector<PartySums>& parties) {
  PartySums total;
  for (const PartySums& party : parties) {
    total.documents += party.documents;
    AddMoney(total.gross, party.gross);
    AddMoney(total.sum, party.sum);
    AddMoney(total.cost, party.cost);
  }
  return total;
}

QString ShareText(double part, double whole) {
  return FormatMoney(whole == 0 ? 0 : part / whole * 100);
}

TableReport::Cells ClientCells(const PartySums& client, double whole) {
  return {client.name,
          QString::number(client.documents),
          FormatMoney(client.gross),
          FormatMoney(client.gross - client.sum),
          FormatMoney(client.sum),
          FormatMoney(client.sum - client.cost),
          ShareText(client.sum, whole)};
}

TableReport::Cells SupplierCells(const PartySums& supplier, double whole) {
  return {supplier.name, QString::number(supplier.documents), FormatMoney(supplier.sum),
          ShareText(supplier.sum, whole),
          supplier.last.isValid() ? DateText(supplier.last) : QString()};
}

void Fill(TableReport& report, DocumentKind kind, const std::vector<PartySums>& parties,
          TableReport::Cells (*cells)(const PartySums& party, double whole)) {
  PartySums total = TotalOf(parties);
  total.name = u"ИТОГО:"_s;
  std::vector<TableReport::Cells> rows;
  std::vector<QString> names;
  for (const PartySums& party : parties) {
    rows.push_back(cells(party, total.sum));
    names.push_back(party.name);
  }
  SetRows(report, std::move(rows));
  report.total = cells(total, total.sum);
  report.documents = [kind, names = std::move(names)](size_t row) {
    return DocumentsWanted{.kinds = {kind}, .party = names[row]};
  };
}

}  // namespace

TableReport CollectClients(const DataDir& data, const Session& session, const ReportScope& scope,
                           const Progress& progress) {
  TableReport report{.heading = u"Отчет по клиентам"_s,
                     .columns = {{u"Клиент"_s, FigureKind::kText, 30},
                                 {u"Документов"_s, FigureKind::kCount, 10},
                                 {u"Сумма"_s, FigureKind::kMoney, 10},
                                 {u"Скидка"_s, FigureKind::kMoney, 10},
                                 {u"Со скидкой"_s, FigureKind::kMoney, 10},
                                 {u"Прибыль"_s, FigureKind::kMoney, 10},
                                 {u"Доля, %"_s, FigureKind::kPercent, 10}},
                     .charted = {4, 5},
                     .compared = 4};
  Fill(report, DocumentKind::kShipment,
       CollectParties(DocumentKind::kShipment, data, session, scope, progress), &ClientCells);
  return report;
}

TableReport CollectSuppliers(const DataDir& data, const Session& session, const ReportScope& scope,
                             const Progress& progress) {
  TableReport report{.heading = u"Отчет по поставщикам"_s,
                     .columns = {{u"Поставщик"_s, FigureKind::kText, 30},
                                 {u"Документов"_s, FigureKind::kCount, 10},
                                 {u"Сумма"_s, FigureKind::kMoney, 10},
                                 {u"Доля, %"_s, FigureKind::kPercent, 10},
                                 {u"Последний приход"_s, FigureKind::kText, 10}},
                     .charted = {2},
                     .compared = 2};
  Fill(report, DocumentKind::kReceipt,
       CollectParties(DocumentKind::kReceipt, data, session, scope, progress), &SupplierCells);
  return report;
}

}  // namespace kladez
