#include "screens/directories/PartyTexts.h"

#include <array>

#include "formats/InOrder.h"

namespace kladez {

const PartyScreens& ScreensOf(PartyKind kind) {
  static constexpr std::array<PartyScreens, 3> kScreens = {{
      {PartyKind::kFirm, u"sprFirm", u"Фирмы", u"sprFirmNew", u"Фирма"},
      {PartyKind::kClient, u"sprklient", u"Клиенты", u"sprklientnew", u"Клиент"},
      {PartyKind::kSupplier, u"sprPost", u"Поставщики", u"sprpostnew", u"Поставщик"},
  }};
  static_assert(IsInOrder(kScreens, &PartyScreens::kind));
  return kScreens[static_cast<size_t>(kind)];
}

const PartyCaption& CaptionOf(PartyField field) {
  static constexpr std::array<PartyCaption, 17> kCaptions = {{
      {PartyField::kName, u"Название", u"Название:", 3000},
      {PartyField::kLegalAddress, u"Юр. адрес", u"Юридический адрес:", 3000},
      {PartyField::kActualAddress, u"Факт. адрес", u"Фактический адрес:", 3000},
      {PartyField::kPhone, u"Тел.", u"Телефоны:", 1500},
      {PartyField::kFax, u"Факс", u"Факс:", 1500},
      {PartyField::kContact, u"Контакт", u"Контакт с:", 1800},
      {PartyField::kAccount, u"Р/С", u"Р/с:", 2100},
      {PartyField::kBank, u"в", u"в", 2400},
      {PartyField::kCity, u"Город", u"Город:", 1500},
      {PartyField::kCorrespondent, u"Кор. счет", u"Кор.счет:", 2100},
      {PartyField::kBankCode, u"БИК", u"БИК:", 1200},
      {PartyField::kTaxNumber, u"ИНН", u"ИНН:", 1500},
      {PartyField::kIndustryCode, u"ОКОНХ", u"ОКОНХ:", 1200},
      {PartyField::kFirmCode, u"ОКПО", u"ОКПО:", 1200},
      {PartyField::kShipper, u"Грузоотправитель", u"Грузоотправитель:", 2400},
      {PartyField::kDirector, u"Директор", u"Директор:", 1800},
      {PartyField::kAccountant, u"Гл. бухгалтер", u"Гл. бухгалтер:", 1800},
  }};
  static_assert(IsInOrder(kCaptions, &PartyCaption::field));
  return kCaptions[static_cast<size_t>(field)];
}

}  // namespace kladez
