#include <array>

#include "demo/DemoGoods.h"

namespace kladez::demo {
namespace {

using namespace Qt::StringLiterals;

constexpr DemoParty kFirms[] = {
    {u"ООО «Семь ступеней»", u"156000, г. Кострома, ул. Причальная, д. 7", u"(4942) 55-01-17",
     u"Воронцова А. П.", u"Костромском филиале банка «Волжский берег»", u"Кострома", u"4401998811"},
    {u"ИП Лукошкина В. С.", u"156013, г. Кострома, пр-т Дальний, д. 31", u"(4942) 55-01-18",
     u"Лукошкина В. С.", u"Костромском филиале банка «Волжский берег»", u"Кострома",
     u"440199776655"},
};

constexpr DemoParty kSuppliers[] = {
    {u"ООО «Чайный путь»", u"г. Москва, ул. Амбарная, д. 4, стр. 2", u"(495) 555-14-20",
     u"Игнатов Пётр", u"банке «Столичный расчёт»", u"Москва", u"7701998812"},
    {u"АО «Волжские закрома»", u"г. Ярославль, Хлебный пер., д. 12", u"(4852) 55-33-10",
     u"Рябинина Ольга", u"банке «Волжский берег»", u"Ярославль", u"7601998813"},
    {u"ООО «Сладкий ряд»", u"г. Тула, ул. Медовая, д. 21", u"(4872) 55-80-44", u"Самоварова Нина",
     u"банке «Оружейный»", u"Тула", u"7101998814"},
    {u"ООО «Рыбный двор»", u"г. Мурманск, ул. Портовая, д. 9", u"(8152) 55-72-03", u"Тюленев Игорь",
     u"банке «Северный причал»", u"Мурманск", u"5101998815"},
    {u"ООО «Родниковая долина»", u"г. Пятигорск, ул. Источная, д. 3", u"(8793) 55-61-90",
     u"Казбекова Лейла", u"банке «Предгорье»", u"Пятигорск", u"2601998816"},
    {u"АО «Чистый дом»", u"г. Дзержинск, Заводское ш., д. 40", u"(8313) 55-19-28", u"Мылов Сергей",
     u"банке «Окский»", u"Дзержинск", u"5201998817"},
    {u"ООО «Хозтовары-Опт»", u"г. Иваново, ул. Ткацкая, д. 15", u"(4932) 55-27-71",
     u"Ситцева Мария", u"банке «Текстильщик»", u"Иваново", u"3701998818"},
    {u"ООО «Бумажный лист»", u"г. Сыктывкар, ул. Еловая, д. 8", u"(8212) 55-40-06", u"Зырянов Олег",
     u"банке «Северный причал»", u"Сыктывкар", u"1101998819"},
};

constexpr DemoParty kClients[] = {
    {u"Магазин «У фонтана»", u"г. Кострома, пл. Мирная, д. 1", u"(4942) 55-11-01", u"Белкина Т. И.",
     u"банке «Волжский берег»", u"Кострома", u"4401998820"},
    {u"Магазин «Продукты на Садовой»", u"г. Кострома, ул. Садовая, д. 18", u"(4942) 55-11-02",
     u"Орешкин Д. М.", u"банке «Волжский берег»", u"Кострома", u"4401998821"},
    {u"ООО «Домашний очаг»", u"г. Галич, ул. Озёрная, д. 5", u"(49437) 55-1-03", u"Печкина Л. В.",
     u"банке «Волжский берег»", u"Галич", u"4401998822"},
    {u"Столовая № 4", u"г. Кострома, ул. Заводская, д. 62", u"(4942) 55-11-04", u"Ложкина Е. А.",
     u"банке «Волжский берег»", u"Кострома", u"4401998823"},
    {u"Кафе «Самовар»", u"г. Кострома, Молочная гора, д. 3", u"(4942) 55-11-05", u"Блинов Р. О.",
     u"банке «Оружейный»", u"Кострома", u"4401998824"},
    {u"Школа № 12, буфет", u"г. Кострома, ул. Школьная, д. 12", u"(4942) 55-11-06",
     u"Булочкина О. С.", u"банке «Волжский берег»", u"Кострома", u"4401998825"},
    {u"ИП Гришин А. Н.", u"г. Нерехта, ул. Рыночная, д. 2", u"(49431) 55-2-07", u"Гришин А. Н.",
     u"банке «Текстильщик»", u"Нерехта", u"440199882601"},
    {u"ИП Ёлкина С. Ю.", u"г. Буй, ул. Вокзальная, д. 27", u"(49435) 55-3-08", u"Ёлкина С. Ю.",
     u"банке «Волжский берег»", u"Буй", u"440199882702"},
    {u"ООО «Берёзка»", u"г. Волгореченск, ул. Речная, д. 14", u"(49453) 55-4-09", u"Соколова В. К.",
     u"банке «Волжский берег»", u"Волгореченск", u"4401998828"},
    {u"Пансионат «Тихий плёс»", u"Костромская обл., пос. Лесной", u"(4942) 55-11-10",
     u"Рощина Г. Ф.", u"банке «Предгорье»", u"Кострома", u"4401998829"},
    {u"Магазин «Канцмир»", u"г. Кострома, ул. Книжная, д. 9", u"(4942) 55-11-11", u"Скрепкин И. Б.",
     u"банке «Столичный расчёт»", u"Кострома", u"4401998830"},
    {u"Розничный покупатель", u"", u"", u"", u"", u"Кострома", u""},
};

QString Digits(QStringView prefix, int index, int width) {
  return prefix.toString() + QString::number(index + 1).rightJustified(width, u'0');
}

// Whoever has no tax number has no accounts and codes either.
QString TextOf(PartyField field, const DemoParty& party, int index) {
  const bool known = !party.tax_number.isEmpty();
  switch (field) {
    case PartyField::kName:
      return party.name.toString();
    case PartyField::kLegalAddress:
    case PartyField::kActualAddress:
      return party.address.toString();
    case PartyField::kPhone:
    case PartyField::kFax:
      return party.phone.toString();
    case PartyField::kContact:
    case PartyField::kDirector:
      return party.contact.toString();
    case PartyField::kAccount:
      return known ? Digits(u"4070281000000000", index, 4) : QString();
    case PartyField::kBank:
      return party.bank.toString();
    case PartyField::kCity:
      return party.city.toString();
    case PartyField::kCorrespondent:
      return known ? Digits(u"3010181000000000", index, 4) : QString();
    case PartyField::kBankCode:
      return known ? Digits(u"0434690", index, 2) : QString();
    case PartyField::kTaxNumber:
      return party.tax_number.toString();
    case PartyField::kIndustryCode:
      return known ? u"71211"_s : QString();
    case PartyField::kFirmCode:
      return known ? Digits(u"990011", index, 2) : QString();
    case PartyField::kShipper:
      return u"он же"_s;
    case PartyField::kAccountant:
      return u"Счетова М. Г."_s;
  }
  Q_UNREACHABLE();
}

}  // namespace

std::span<const DemoParty> Firms() { return kFirms; }
std::span<const DemoParty> Suppliers() { return kSuppliers; }
std::span<const DemoParty> Clients() { return kClients; }

Party RecordOf(PartyKind kind, const DemoParty& party, int index) {
  Party record;
  for (const PartyField field : FieldsOf(kind)) record.append(TextOf(field, party, index));
  return record;
}

}  // namespace kladez::demo
