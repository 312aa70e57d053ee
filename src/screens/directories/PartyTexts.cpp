#include "screens/directories/PartyTexts.h"

#include <array>

namespace kladez {

using namespace Qt::StringLiterals;

const PartyScreens& ScreensOf(PartyKind kind) {
  // In the order of PartyKind.
  static const std::array<PartyScreens, 3> screens = {{
      {u"sprFirm"_s, u"Фирмы"_s, u"sprFirmNew"_s, u"Фирма"_s},
      {u"sprklient"_s, u"Клиенты"_s, u"sprklientnew"_s, u"Клиент"_s},
      {u"sprPost"_s, u"Поставщики"_s, u"sprpostnew"_s, u"Поставщик"_s},
  }};
  static_assert(screens.size() == static_cast<size_t>(PartyKind::kSupplier) + 1);
  return screens[static_cast<size_t>(kind)];
}

const PartyCaption& CaptionOf(PartyField field) {
  // In the order of PartyField.
  static const std::array<PartyCaption, 17> captions = {{
      {u"Название"_s, u"Название:"_s, 3000},
      {u"Юр. адрес"_s, u"Юридический адрес:"_s, 3000},
      {u"Факт. адрес"_s, u"Фактический адрес:"_s, 3000},
      {u"Тел."_s, u"Телефоны:"_s, 1500},
      {u"Факс"_s, u"Факс:"_s, 1500},
      {u"Контакт"_s, u"Контакт с:"_s, 1800},
      {u"Р/С"_s, u"Р/с:"_s, 2100},
      {u"в"_s, u"в"_s, 2400},
      {u"Город"_s, u"Город:"_s, 1500},
      {u"Кор. счет"_s, u"Кор.счет:"_s, 2100},
      {u"БИК"_s, u"БИК:"_s, 1200},
      {u"ИНН"_s, u"ИНН:"_s, 1500},
      {u"ОКОНХ"_s, u"ОКОНХ:"_s, 1200},
      {u"ОКПО"_s, u"ОКПО:"_s, 1200},
      {u"Грузоотправитель"_s, u"Грузоотправитель:"_s, 2400},
      {u"Директор"_s, u"Директор:"_s, 1800},
      {u"Гл. бухгалтер"_s, u"Гл. бухгалтер:"_s, 1800},
  }};
  static_assert(captions.size() == static_cast<size_t>(PartyField::kAccountant) + 1);
  return captions[static_cast<size_t>(field)];
}

}  // namespace kladez
