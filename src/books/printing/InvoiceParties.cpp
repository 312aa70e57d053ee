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
  const auto field = [&](PartyField which) { return FieldOf(kind, party, which); };
  InvoiceParty texts;
  texts.name.text = field(PartyField::kName);
  texts.address.text = field(PartyField::kLegalAddress);
  texts.account.text = field(PartyField::kAccount);
  texts.bank = field(PartyField::kBank);
  texts.correspondent.text = field(PartyField::kCorrespondent);
  texts.bank_code.text = field(PartyField::kBankCode);
  texts.tax_number.text = field(PartyField::kTaxNumber);
  texts.industry_code.text = field(PartyField::kIndustryCode);
  texts.firm_code.text = field(PartyField::kFirmCode);
  const QString shipper = field(PartyField::kShipper);
  // A new Database holds "-" in every field of its firm.
  const bool itself = shipper.isEmpty() || shipper == u"-" || shipper == texts.name.text;
  texts.shipper.text = itself ? u"он же"_s : shipper;
  return texts;
}

}  // namespace kladez
