#include "books/reports/GoodsHistory.h"

#include <algorithm>
#include <cmath>

#include "books/reports/ReportScope.h"
#include "books/stock/DocumentBook.h"
#include "formats/DatabaseFiles.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;
using L = DocumentLine;

// Takes the lines of one item out of the documents that the scanner shows.
class MovementReader {
 public:
  MovementReader(const QString& goods, const QStringList& warehouses,
                 std::vector<GoodsMovement>& movements, QString& unit)
      : name_(EncodeText(goods)),
        warehouses_(warehouses),
        open_(EncodeText(u"нет")),
        movements_(movements),
        unit_(unit) {}

  void Read(DocumentKind kind, const QString& home, ScannedDocument& document) {
    const auto date = document.Date();
    if (!date) return;
    while (document.NextLine()) {
      if (document.Line(&L::name) != name_) continue;
      if (unit_.isEmpty()) unit_ = DecodeText(document.Line(&L::unit));
      if (kind == DocumentKind::kTransfer) {
        AddTransfer(*date, document);
      } else {
        GoodsMovement line = LineOf(kind, *date, home, document);
        if (kind == DocumentKind::kShipment) line.quantity = -line.quantity;
        line.warehouse = home;
        line.party = DecodeText(document.Head(&H::party));
        movements_.push_back(std::move(line));
      }
    }
  }

 private:
  GoodsMovement LineOf(DocumentKind kind, QDate date, const QString& home,
                       const ScannedDocument& document) const {
    QString L::*price = kind == DocumentKind::kReceipt ? &L::price : &L::net_price;
    return {.date = date,
            .document = {kind, home, document.File()},
            .number = DecodeText(document.Head(&H::number)),
            .warehouse = {},
            .party = {},
            .quantity = NumberOr(document.Line(&L::quantity)),
            .is_open = BookOf(kind).has_flag && document.Head(&H::closed) == open_,
            .price = kind == DocumentKind::kTransfer
                         ? QString()
                         : ToNumberOr(DecodeText(document.Line(price)))};
  }

  // What leaves one warehouse comes to the other; one that is no longer there has no stock.
  void AddTransfer(QDate date, const ScannedDocument& document) {
    const QString from = DecodeText(document.Head(&H::party));
    const QString to = DecodeText(document.Head(&H::destination));
    for (const bool out : {true, false}) {
      const QString& warehouse = out ? from : to;
      if (!warehouses_.contains(warehouse)) continue;
      GoodsMovement line = LineOf(DocumentKind::kTransfer, date, {}, document);
      if (out) line.quantity = -line.quantity;
      line.warehouse = warehouse;
      line.party = out ? to : from;
      movements_.push_back(std::move(line));
    }
  }

  const QByteArray name_;
  const QStringList& warehouses_;
  const QByteArray open_;
  std::vector<GoodsMovement>& movements_;
  QString& unit_;
};

// The directory of transfers is one for all warehouses.
void ScanTransfers(const DataDir& data, const Session& session, const Progress& progress,
                   const std::function<void(ScannedDocument&)>& visit) {
  const QString directory = session.Path(files::kTransfers);
  if (!data.DirectoryExists(directory)) return;
  constexpr int kFilesBetweenProgress = 64;
  int until_progress = 0;
  ScanDocuments(data, DocumentKind::kTransfer, directory, Unreadable::kPassOver,
                [&](ScannedDocument& document) {
                  if (until_progress-- == 0) {
                    until_progress = kFilesBetweenProgress;
                    progress.Tell(document.Part());
                  }
                  visit(document);
                  return true;
                });
}

}  // namespace

bool GoodsHistory::Counts(const QString& of, const QString& chosen) const {
  return chosen == kAllWarehouses || of == chosen;
}

double GoodsHistory::OnHand(const QString& warehouse) const {
  double sum = 0;
  for (const auto& [name, quantity] : on_hand_) {
    if (Counts(name, warehouse)) sum = RoundGeneral(sum + quantity);
  }
  return sum;
}

std::vector<GoodsHistory::Row> GoodsHistory::Rows(const QString& warehouse) const {
  std::vector<Row> rows(1);
  double moved = 0;
  for (const GoodsMovement& movement : movements_) {
    if (!Counts(movement.warehouse, warehouse)) continue;
    if (!movement.is_open) moved = RoundGeneral(moved + movement.quantity);
    rows.push_back({movement, movement.quantity, moved});
  }
  const double untold = RoundGeneral(OnHand(warehouse) - moved);
  rows.front() = {std::nullopt, untold, untold};
  if (untold == 0) rows.erase(rows.begin());
  for (Row& row : rows) {
    if (row.movement) row.stock = RoundGeneral(row.stock + untold);
  }
  return rows;
}

GoodsHistory::Sums GoodsHistory::Total(const QString& warehouse) const {
  Sums sums;
  for (const GoodsMovement& movement : movements_) {
    if (movement.is_open || !Counts(movement.warehouse, warehouse)) continue;
    double& sum = movement.quantity < 0 ? sums.shipped : sums.received;
    sum = RoundGeneral(sum + std::abs(movement.quantity));
  }
  sums.stock = OnHand(warehouse);
  return sums;
}

double GoodsHistory::StockOn(QDate day, const QString& warehouse) const {
  double stock = OnHand(warehouse);
  for (const GoodsMovement& movement : movements_) {
    if (movement.date <= day || movement.is_open || !Counts(movement.warehouse, warehouse)) {
      continue;
    }
    stock = RoundGeneral(stock - movement.quantity);
  }
  return stock;
}

GoodsHistory CollectGoodsHistory(const DataDir& data, const Session& session, const QString& goods,
                                 const Progress& progress) {
  GoodsHistory history(goods);
  const QByteArray name = EncodeText(goods);
  for (const QString& warehouse : session.warehouses) {
    double& on_hand = history.on_hand_[warehouse];
    ForEachLedgerRecord(data.Read(LedgerPath(session, warehouse)),
                        [&](QByteArrayView record, QByteArrayView quantity, QByteArrayView unit) {
                          if (record != name) return;
                          on_hand = RoundGeneral(on_hand + NumberOr(quantity));
                          // A zeroed record has "0" for its unit.
                          if (history.unit_.isEmpty() && unit != "0")
                            history.unit_ = DecodeText(unit);
                        });
  }
  MovementReader reader(goods, session.warehouses, history.movements_, history.unit_);
  const auto scan = [&](DocumentKind kind, double from, double to) {
    const double share =
        (to - from) / static_cast<double>(std::max<qsizetype>(1, session.warehouses.size()));
    double begun = from;
    for (const QString& warehouse : session.warehouses) {
      ScanWarehouses(data, session, {warehouse}, kind, Unreadable::kPassOver,
                     progress.Piece(begun, begun + share),
                     [&](ScannedDocument& document) { reader.Read(kind, warehouse, document); });
      begun += share;
    }
  };
  // Within a day what came stands before what went, so that no stock seems to be short.
  scan(DocumentKind::kReceipt, 0, 0.4);
  ScanTransfers(data, session, progress.Piece(0.4, 0.5), [&](ScannedDocument& document) {
    reader.Read(DocumentKind::kTransfer, {}, document);
  });
  scan(DocumentKind::kShipment, 0.5, 1);
  std::stable_sort(history.movements_.begin(), history.movements_.end(),
                   [](const auto& a, const auto& b) { return a.date < b.date; });
  return history;
}

}  // namespace kladez
