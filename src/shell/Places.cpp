#include "shell/Places.h"

#include <array>

#include "formats/InOrder.h"

namespace kladez {
namespace {

using enum PlaceGroup;
using look::IconName;

constexpr auto kPlaces = std::to_array<PlaceRow>({
    {Place::kStock, kStore, IconName::kStock, true, false, u"mnu_Sklad_NT", u"&Наличие товаров...",
     u"Наличие товаров", u"Label11", u"Наличие товаров", u"Picture6"},
    {Place::kReceipts, kStore, IconName::kReceipt, true, true, u"mnu_Sklad_P", u"&Приход...",
     u"Приход", u"Label10", u"Приход", u"Picture7"},
    {Place::kShipments, kStore, IconName::kShipment, true, false, u"mnu_Sklad_R", u"&Расход...",
     u"Расход", u"Label8", u"Расход", u"Picture8"},
    {Place::kTransfers, kStore, IconName::kTransfer, true, true, u"mnu_Sklad_VO",
     u"&Внутреннее перемещение...", u"Внутреннее перемещение", u"Label15",
     u"Внутреннее перемещение", u"Picture9"},
    {Place::kPrices, kStore, IconName::kPrices, true, false, u"mnu_Sklad_PL", u"Прайс-&лист...",
     u"Прайс-лист", u"Label9", u"Прайс-лист", u"Picture10"},
    {Place::kOpening,
     kStore,
     IconName::kAdd,
     false,
     true,
     u"mnu_Sklad_ZO",
     u"&Занесение остатков...",
     u"Занесение остатков",
     {},
     {},
     u"Picture11"},
    {Place::kSalesReport,
     kReports,
     IconName::kReport,
     false,
     false,
     u"mnu_Otchet_OPP",
     u"&Отчет по продажам...",
     u"Отчет по продажам",
     {},
     {},
     u"Picture12"},
    {Place::kSpeedReport,
     kReports,
     IconName::kSort,
     false,
     false,
     u"mnu_Otchet_RPVT",
     u"&Скорость реализации...",
     u"Скорость реализации",
     {},
     {},
     u"Picture13"},
    {Place::kSalesChart,
     kReports,
     IconName::kChart,
     false,
     false,
     u"mnu_Otchet_GP",
     u"&График продаж...",
     u"График продаж",
     {},
     {},
     u"Picture14"},
    {Place::kGoodsChart,
     kReports,
     IconName::kChart,
     false,
     false,
     u"mnu_Otchet_SR",
     u"График реализации по &видам товара...",
     u"График по видам товара",
     {},
     {},
     u"Picture15"},
    {Place::kFlowReport,
     kReports,
     IconName::kTransfer,
     false,
     false,
     u"mnu_Otchet_DB",
     u"&Поступление/реализация...",
     u"Поступление/реализация",
     {},
     {},
     u"Picture16"},
    {Place::kFirms,
     kDirectories,
     IconName::kHome,
     false,
     false,
     u"mnu_Sprav_O",
     u"&Фирмы...",
     u"Фирмы",
     {},
     {},
     u"Picture17"},
    {Place::kGoods, kDirectories, IconName::kGoods, true, false, u"mnu_Sprav_T", u"&Товары...",
     u"Товары", u"Label13", u"Справочник товаров", u"Picture18"},
    {Place::kSuppliers,
     kDirectories,
     IconName::kParty,
     false,
     false,
     u"mnu_Sprav_P",
     u"&Поставщики...",
     u"Поставщики",
     {},
     {},
     u"Picture19"},
    {Place::kClients,
     kDirectories,
     IconName::kParty,
     false,
     false,
     u"mnu_Sprav_K",
     u"&Клиенты...",
     u"Клиенты",
     {},
     {},
     u"Picture20"},
    {Place::kWarehouses,
     kDirectories,
     IconName::kWarehouse,
     false,
     false,
     u"mnu_Sprav_S",
     u"&Склады...",
     u"Склады",
     {},
     {},
     u"Picture21"},
    {Place::kHome,
     kNone,
     IconName::kHome,
     true,
     false,
     {},
     {},
     u"Главная",
     u"Label14",
     u"Главная",
     {}},
    {Place::kCurrency,
     kDirectories,
     IconName::kCurrency,
     false,
     false,
     u"mnu_Sprav_OV",
     u"&Основная валюта...",
     u"Основная валюта",
     {},
     {},
     u"Picture23"},
});
static_assert(IsInOrder(kPlaces, &PlaceRow::place));

}  // namespace

std::span<const PlaceRow> Places() { return kPlaces; }

const PlaceRow& RowOf(Place place) { return kPlaces[static_cast<size_t>(place)]; }

QStringView GroupHeading(PlaceGroup group) {
  switch (group) {
    case kStore:
      return u"Склад";
    case kReports:
      return u"Отчеты";
    case kDirectories:
      return u"Справочники";
    case kNone:
      break;
  }
  return {};
}

}  // namespace kladez
