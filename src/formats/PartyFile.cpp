#include "formats/PartyFile.h"

#include <algorithm>

#include "formats/DatabaseFiles.h"
#include "formats/TextLines.h"

namespace kladez {

using namespace Qt::StringLiterals;

const std::vector<PartyField>& FieldsOf(PartyKind kind) {
  using enum PartyField;
  static const std::vector<PartyField> partner = {
      kName, kLegalAddress, kActualAddress, kPhone,    kFax,       kContact,      kAccount,
      kBank, kCity,         kCorrespondent, kBankCode, kTaxNumber, kIndustryCode, kFirmCode};
  static const std::vector<PartyField> firm = {
      kName,         kLegalAddress, kActualAddress, kPhone,    kFax,
      kAccount,      kBank,         kCorrespondent, kBankCode, kTaxNumber,
      kIndustryCode, kFirmCode,     kShipper,       kDirector, kAccountant};
  return kind == PartyKind::kFirm ? firm : partner;
}

QStringView PartyPath(PartyKind kind) {
  switch (kind) {
    case PartyKind::kFirm:
      return files::kFirms;
    case PartyKind::kClient:
      return files::kClients;
    case PartyKind::kSupplier:
      return files::kSuppliers;
  }
  Q_UNREACHABLE();
}

QString FieldOf(PartyKind kind, const Party& party, PartyField field) {
  const auto& fields = FieldsOf(kind);
  const auto at = std::find(fields.begin(), fields.end(), field);
  return at == fields.end() ? QString() : party.value(at - fields.begin());
}

std::vector<Party> ReadParties(PartyKind kind, QByteArrayView bytes) {
  std::vector<Party> parties;
  const size_t lines = FieldsOf(kind).size();
  for (LineReader reader(bytes); !reader.AtEnd();) {
    Party party;
    for (size_t i = 0; i < lines; ++i) party.append(reader.Next());
    parties.push_back(std::move(party));
  }
  return parties;
}

QByteArray WriteParties(const std::vector<Party>& parties) {
  LineWriter writer;
  for (const Party& party : parties) {
    for (const QString& field : party) writer.Add(field);
  }
  return writer.Take();
}

}  // namespace kladez
