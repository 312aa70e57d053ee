// What a print screen prints: the fields and lines that the screen which opened it shows at that
// moment, saved or not. Nothing is read from the document's file.
#pragma once

#include <QString>
#include <vector>

#include "formats/DocumentFile.h"

namespace kladez {

struct PrintSource {
  DocumentKind kind = DocumentKind::kShipment;
  QString number;
  QString date;
  QString party;        // client, supplier, or the warehouse goods come from
  QString destination;  // transfers: the warehouse goods go to
  QString warehouse;    // the one chosen in the register
  QString total;        // the document's sum before the discount, as its field shows it
  QString discount;     // percent, shipments only
  std::vector<DocumentLine> lines;
};

}  // namespace kladez
