#include "formats/DocumentFile.h"

#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;
using L = DocumentLine;

DocumentHead ReadHead(const DocumentFormat& format, LineReader& reader) {
  DocumentHead head;
  for (auto field : format.head) head.*field = reader.Next();
  if (head.date.endsWith(u' ')) head.date.chop(1);
  return head;
}

}  // namespace

const DocumentFormat& FormatOf(DocumentKind kind) {
  static const DocumentFormat receipt = {u".prh"_s,
                                         {&H::number, &H::date, &H::party, &H::sum, &H::closed},
                                         {&L::name, &L::quantity, &L::unit, &L::price}};
  static const DocumentFormat shipment = {
      u".uhd"_s,
      {&H::number, &H::date, &H::party, &H::sum, &H::discount, &H::net_sum, &H::closed},
      {&L::name, &L::quantity, &L::unit, &L::cost, &L::price, &L::net_price}};
  static const DocumentFormat transfer = {
      u".vpr"_s,
      {&H::number, &H::date, &H::party, &H::destination, &H::sum},
      {&L::name, &L::quantity, &L::unit, &L::cost, &L::price}};
  switch (kind) {
    case DocumentKind::kReceipt:
      return receipt;
    case DocumentKind::kShipment:
      return shipment;
    case DocumentKind::kTransfer:
      return transfer;
  }
  Q_UNREACHABLE();
}

DocumentHead ReadDocumentHead(DocumentKind kind, QByteArrayView bytes) {
  LineReader reader(bytes);
  return ReadHead(FormatOf(kind), reader);
}

Document ReadDocument(DocumentKind kind, QByteArrayView bytes) {
  const DocumentFormat& format = FormatOf(kind);
  LineReader reader(bytes);
  Document document{ReadHead(format, reader), {}};
  while (!reader.AtEnd()) {
    DocumentLine& line = document.lines.emplace_back();
    for (auto field : format.line) line.*field = reader.Next();
  }
  return document;
}

QByteArray WriteDocument(DocumentKind kind, const Document& document) {
  const DocumentFormat& format = FormatOf(kind);
  LineWriter writer;
  for (auto field : format.head) writer.Add(document.head.*field);
  for (const DocumentLine& line : document.lines) {
    for (auto field : format.line) writer.Add(line.*field);
  }
  return writer.Take();
}

}  // namespace kladez
