#include "books/printing/InvoiceParties.h"

namespace kladez {

using namespace Qt::StringLiterals;

Party PartyNamed(PartyKind kind, QByteArrayView bytes, const QString& name) {
  for (const Party& party : ReadParties(kind, bytes)) {
    if (FieldOf(kind, party, PartyField::kName) == name) return party;
  }
  return {};
}

InvoiceParty InvoicePartyOf(PartyKind kind, const Party& party) {
  InvoiceParty texts;
  for (const PartyField field : FieldsOf(kind)) texts[field].text = FieldOf(kind, party, field);
  QString& shipper = texts[PartyField::kShipper].text;
  // A new Database holds "-" in every field of its firm.
  const bool itself =
      shipper.isEmpty() || shipper == u"-" || shipper == texts[PartyField::kName].text;
  if (itself) shipper = u"он же"_s;
  return texts;
}

}  // namespace kladez
