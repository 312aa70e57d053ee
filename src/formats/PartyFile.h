// The three directories of parties: own firms (spr\firma.spr, 15 lines a record), clients
// (spr\klient.spr) and suppliers (spr\post.spr, 14 lines each). One field a line, nothing between
// the records; the first line is the name, by which documents know a party.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <vector>

namespace kladez {

enum class PartyKind { kFirm, kClient, kSupplier };
inline constexpr std::array kPartyKinds = {PartyKind::kFirm, PartyKind::kClient,
                                           PartyKind::kSupplier};

enum class PartyField {
  kName,
  kLegalAddress,
  kActualAddress,
  kPhone,
  kFax,
  kContact,  // clients and suppliers only
  kAccount,
  kBank,
  kCity,           // clients and suppliers only
  kCorrespondent,  // correspondent account
  kBankCode,       // БИК
  kTaxNumber,      // ИНН
  kIndustryCode,   // ОКОНХ
  kFirmCode,       // ОКПО
  kShipper,        // firms only
  kDirector,       // firms only
  kAccountant,     // firms only
};

// A record is as many texts as its kind has lines, in the order of the file.
using Party = QStringList;

// The fields of a kind in the order of its file's lines.
const std::vector<PartyField>& FieldsOf(PartyKind kind);
// The path of the kind's file inside a Database.
QStringView PartyPath(PartyKind kind);
// A field of a record, empty where the kind has no such field.
QString FieldOf(PartyKind kind, const Party& party, PartyField field);

// The last record of a cut file has its missing fields empty.
std::vector<Party> ReadParties(PartyKind kind, QByteArrayView bytes);
QByteArray WriteParties(const std::vector<Party>& parties);

}  // namespace kladez
