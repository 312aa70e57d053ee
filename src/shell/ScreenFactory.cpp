#include "shell/ScreenFactory.h"

#include "screens/directories/CurrencyDialog.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/WarehousesDialog.h"
#include "screens/directories/sprFirm.h"
#include "screens/directories/sprPost.h"
#include "screens/directories/sprklient.h"
#include "screens/prices/PriceScreen.h"
#include "screens/reports/otgr.h"
#include "screens/reports/otppr.h"
#include "screens/reports/otpruh.h"
#include "screens/reports/otrpt.h"
#include "screens/reports/otspeed.h"
#include "screens/stock/OnHandScreen.h"
#include "screens/stock/OpeningBalancesDialog.h"
#include "screens/stock/documents/TovPrih.h"
#include "screens/stock/documents/TovUhod.h"
#include "screens/stock/documents/vnutr.h"

namespace kladez {

namespace {

QWidget* NewGoodsDirectory(AppContext& context, QWidget* parent) {
  auto* directory = new GoodsDirectoryScreen(context, parent);
  QObject::connect(directory, &GoodsDirectoryScreen::ChartWanted, directory,
                   [&context, directory](const QString& goods) {
                     otspeed(context, goods, directory->window()).exec();
                   });
  return directory;
}

}  // namespace

QWidget* NewScreen(Place place, AppContext& context, QWidget* parent) {
  switch (place) {
    case Place::kStock:
      return new OnHandScreen(context, parent);
    case Place::kReceipts:
      return new TovPrih(context, parent);
    case Place::kShipments:
      return new TovUhod(context, parent);
    case Place::kTransfers:
      return new vnutr(context, parent);
    case Place::kPrices:
      return new PriceScreen(context, parent);
    case Place::kOpening:
      return new OpeningBalancesDialog(context, parent);
    case Place::kSalesReport:
      return new otppr(context, parent);
    case Place::kSpeedReport:
      return new otrpt(context, parent);
    case Place::kSalesChart:
      return new otgr(context, parent);
    case Place::kGoodsChart:
      return new otspeed(context, parent);
    case Place::kFlowReport:
      return new otpruh(context, parent);
    case Place::kFirms:
      return new sprFirm(context, parent);
    case Place::kGoods:
      return NewGoodsDirectory(context, parent);
    case Place::kSuppliers:
      return new sprPost(context, parent);
    case Place::kClients:
      return new sprklient(context, parent);
    case Place::kWarehouses:
      return new WarehousesDialog(context, parent);
    case Place::kCurrency:
      return new CurrencyDialog(context, parent);
    case Place::kHome:
      return nullptr;
  }
  return nullptr;
}

}  // namespace kladez
