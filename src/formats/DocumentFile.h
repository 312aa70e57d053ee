// The three movement documents: receipts (.prh), shipments (.uhd) and transfers (.vpr). Each is a
// head of a fixed number of lines, then one group of lines for each goods line; they differ only in
// which fields stand in which line (see the table in the source).
//
//   receipt:  number, date, supplier, sum, "да" or "нет";
//             name, quantity, unit, price
//   shipment: number, date, client, sum, discount, net sum, "да" or "нет";
//             name, quantity, unit, cost, price, net price
//   transfer: number, date, from, to, sum;
//             name, quantity, unit, cost, price
#pragma once

#include <QByteArray>
#include <QString>
#include <span>
#include <vector>

namespace kladez {

enum class DocumentKind { kReceipt, kShipment, kTransfer };

struct DocumentHead {
  QString number;
  QString date;         // "dd.MM.yyyy"; old files may carry a blank behind it
  QString party;        // supplier, client, or the warehouse goods come from
  QString destination;  // transfers: the warehouse goods go to
  QString sum;          // "#0.00", before the discount
  QString discount;     // shipments: percent
  QString net_sum;      // shipments: sum after the discount
  QString closed;       // "да" or "нет"; transfers have none

  // Whatever is not "нет" counts as closed.
  bool IsClosed() const { return closed != u"нет"; }
  bool operator==(const DocumentHead&) const = default;
};

struct DocumentLine {
  QString name;
  QString quantity;
  QString unit;
  QString cost;       // shipments and transfers: purchase price per unit
  QString price;      // purchase price of a receipt, sale price of the others
  QString net_price;  // shipments: sale price after the discount

  bool operator==(const DocumentLine&) const = default;
};

struct Document {
  DocumentHead head;
  std::vector<DocumentLine> lines;

  bool operator==(const Document&) const = default;
};

struct DocumentFormat {
  QString extension;  // ".prh"
  std::vector<QString DocumentHead::*> head;
  std::vector<QString DocumentLine::*> line;
};

// Which fields stand in which line of a kind.
const DocumentFormat& FormatOf(DocumentKind kind);

// A document that was cut reads on with empty fields; the blank behind a date is cut off.
DocumentHead ReadDocumentHead(DocumentKind kind, QByteArrayView bytes);
Document ReadDocument(DocumentKind kind, QByteArrayView bytes);
QByteArray WriteDocument(DocumentKind kind, const Document& document);

}  // namespace kladez
