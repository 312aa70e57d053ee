// Where a person can go: every entry of the menus "Склад", "Отчеты", "Справочники", every link of
// the left panel, of the strip at the top and of the home screen, in one table.
#pragma once

#include <QStringView>
#include <span>

#include "ui/controls/Look.h"

namespace kladez {

// In the order of the links `go` of the left panel.
enum class Place {
  kStock,
  kReceipts,
  kShipments,
  kTransfers,
  kPrices,
  kOpening,
  kSalesReport,
  kSpeedReport,
  kSalesChart,
  kGoodsChart,
  kFlowReport,
  kFirms,
  kGoods,
  kSuppliers,
  kClients,
  kWarehouses,
  kHome,
  kCurrency,
  kClientsReport,
  kSuppliersReport,
  kMarginReport,
  kAbcReport,
  kOrder,
};

// What stands in a menu only, below a line, is of a group of its own.
enum class PlaceGroup { kStore, kMoreStore, kReports, kMoreReports, kDirectories, kNone };

struct PlaceRow {
  Place place;
  PlaceGroup group;
  look::IconName icon;
  bool child;        // lives inside the main window; all else is modal
  bool barred;       // its menu entry is closed to the seller, apart from whole menus
  QStringView menu;  // name and caption of the menu entry, with the letter to press
  QStringView caption;
  QStringView link;   // caption of the links
  QStringView strip;  // name and caption in the strip at the top, empty where it is not there
  QStringView strip_caption;
  QStringView hint;  // the picture beside the link on the home screen
};

// In the order of Place.
std::span<const PlaceRow> Places();
const PlaceRow& RowOf(Place place);

// "Склад", "Отчеты", "Справочники".
QStringView GroupHeading(PlaceGroup group);

}  // namespace kladez
