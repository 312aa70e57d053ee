#include "books/check/StockCheck.h"

#include <algorithm>
#include <cmath>

#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

}  // namespace

double StockComparison::Unexplained() const {
  const double rest = RoundGeneral(on_hand - receipts + shipments - transfers);
  return std::fabs(rest) <= rounded ? 0 : rest;
}

double StockComparison::Opening() const { return std::max(0.0, Unexplained()); }
double StockComparison::Difference() const { return std::min(0.0, Unexplained()); }

StockCheck::StockCheck(const QStringList& warehouses, const KnownNames& goods)
    : warehouses_(warehouses), goods_(goods), sums_(static_cast<size_t>(warehouses.size())) {}

StockCheck::Sums* StockCheck::At(int warehouse, size_t goods) {
  if (warehouse < 0) return nullptr;
  auto& sums = sums_[static_cast<size_t>(warehouse)];
  if (sums.size() <= goods) sums.resize(std::max(goods + 1, goods_.Count()));
  ++sums[goods].postings;
  return &sums[goods];
}

void StockCheck::AddDocumentLine(DocumentKind kind, int warehouse, int destination, size_t goods,
                                 double quantity) {
  if (Sums* here = At(warehouse, goods)) {
    switch (kind) {
      case DocumentKind::kReceipt:
        here->receipts += quantity;
        break;
      case DocumentKind::kShipment:
        here->shipments += quantity;
        ++here->roundings;
        break;
      case DocumentKind::kTransfer:
        here->transfers -= quantity;
        ++here->roundings;
        break;
    }
  }
  if (kind != DocumentKind::kTransfer) return;
  if (Sums* there = At(destination, goods)) there->transfers += quantity;
}

void StockCheck::AddLedgerRecord(int warehouse, size_t goods, double quantity) {
  if (Sums* sums = At(warehouse, goods)) sums->on_hand += quantity;
}

std::vector<StockComparison> StockCheck::Compare() const {
  std::vector<StockComparison> rows;
  for (size_t warehouse = 0; warehouse < sums_.size(); ++warehouse) {
    for (size_t goods = 0; goods < sums_[warehouse].size(); ++goods) {
      const Sums& sums = sums_[warehouse][goods];
      if (sums.postings == 0) continue;
      rows.push_back({.warehouse = warehouses_[static_cast<qsizetype>(warehouse)],
                      .name = goods_.Text(goods),
                      .receipts = RoundGeneral(sums.receipts),
                      .shipments = RoundGeneral(sums.shipments),
                      .transfers = RoundGeneral(sums.transfers),
                      .on_hand = RoundGeneral(sums.on_hand),
                      .rounded = 0.005 * sums.roundings});
    }
  }
  return rows;
}

void StockCheck::Tell(FindingList& findings) const {
  for (const StockComparison& row : Compare()) {
    const QString file = row.warehouse + u'\\' + files::kLedger;
    if (row.on_hand < 0) {
      findings.Add(
          {file, 0,
           u"Товара «%1» на складе меньше нуля: %2."_s.arg(row.name, GeneralText(row.on_hand))});
    }
    if (row.Difference() < 0) {
      findings.Add(
          {file, 0,
           u"Товара «%1» по документам должно быть %2 (приход %3, расход %4, перемещения %5), на "
           "складе %6: не хватает %7."_s.arg(
               row.name, GeneralText(RoundGeneral(row.on_hand - row.Difference())),
               GeneralText(row.receipts), GeneralText(row.shipments), GeneralText(row.transfers),
               GeneralText(row.on_hand), GeneralText(-row.Difference()))});
    }
  }
}

}  // namespace kladez
