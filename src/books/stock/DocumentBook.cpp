#include "books/stock/DocumentBook.h"

#include <cmath>

#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;

}  // namespace

const DocumentBook& BookOf(DocumentKind kind) {
  static const DocumentBook receipts = {u"Приход",
                                        files::kReceipts,
                                        true,
                                        settings::kSort,
                                        &H::sum,
                                        true,
                                        {{nullptr, Posting::kReceive, u"- "_s}}};
  static const DocumentBook shipments = {u"Расход",
                                         files::kShipments,
                                         true,
                                         settings::kSort,
                                         &H::net_sum,
                                         true,
                                         {{nullptr, Posting::kIssue, {}}}};
  static const DocumentBook transfers = {
      u"Перемещение",
      files::kTransfers,
      false,
      settings::kTransferSort,
      &H::sum,
      false,
      {{&H::party, Posting::kIssue, {}}, {&H::destination, Posting::kReceiveAsNumber, u"- "_s}}};
  switch (kind) {
    case DocumentKind::kReceipt:
      return receipts;
    case DocumentKind::kShipment:
      return shipments;
    case DocumentKind::kTransfer:
      return transfers;
  }
  Q_UNREACHABLE();
}

QString DocumentDirectory(const Session& session, DocumentKind kind, const QString& warehouse) {
  const DocumentBook& book = BookOf(kind);
  return book.in_warehouse ? session.Path(warehouse, book.directory) : session.Path(book.directory);
}

QString DocumentPath(const Session& session, DocumentKind kind, const QString& warehouse,
                     const QString& file) {
  return DocumentDirectory(session, kind, warehouse) + u'\\' + file;
}

QString WarehouseOf(const LedgerEffect& effect, const DocumentHead& head, const QString& home) {
  return effect.warehouse == nullptr ? home : head.*effect.warehouse;
}

std::vector<LedgerRecord> ReversalOf(const LedgerEffect& effect, const Document& document) {
  std::vector<LedgerRecord> records;
  for (const DocumentLine& line : document.lines) {
    records.push_back({line.name, effect.reversal + line.quantity, line.unit});
  }
  return records;
}

std::optional<QString> LineAmount(const QString& quantity, const QString& price) {
  const double amount = NumberOr(quantity) * NumberOr(price);
  if (!std::isfinite(amount)) return std::nullopt;
  return FormatMoney(amount);
}

PrintSource PrintSourceOf(DocumentKind kind, const QString& warehouse, Document document) {
  const DocumentHead& head = document.head;
  return {.kind = kind,
          .number = head.number,
          .date = head.date,
          .party = head.party,
          .destination = head.destination,
          .warehouse = warehouse,
          .total = head.sum,
          .discount = head.discount,
          .lines = std::move(document.lines)};
}

QString AfterDiscount(const QString& value, const QString& percent) {
  const double full = NumberOr(value);
  return FormatMoney(full - full * NumberOr(percent) / 100);
}

}  // namespace kladez
