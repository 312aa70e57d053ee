#include "shell/ScreenFactory.h"

#include <array>

#include "formats/InOrder.h"
#include "screens/directories/CurrencyDialog.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/PartyBrowser.h"
#include "screens/directories/WarehousesDialog.h"
#include "screens/prices/PriceScreen.h"
#include "screens/reports/ChartForms.h"
#include "screens/reports/GoodsHistoryDialog.h"
#include "screens/reports/OrderWindow.h"
#include "screens/reports/ReportForms.h"
#include "screens/stock/OnHandScreen.h"
#include "screens/stock/OpeningBalancesDialog.h"
#include "screens/stock/documents/DocumentRegisterScreen.h"

namespace kladez {
namespace {

using enum Place;

template <typename Screen>
QWidget* Make(AppContext& context, QWidget* parent) {
  return new Screen(context, parent);
}

template <DocumentKind kind>
QWidget* MakeRegister(AppContext& context, QWidget* parent) {
  return new DocumentRegisterScreen(context, kind, parent);
}

QWidget* MakeGoodsDirectory(AppContext& context, QWidget* parent) {
  auto* directory = new GoodsDirectoryScreen(context, parent);
  QObject::connect(directory, &GoodsDirectoryScreen::ChartWanted, directory,
                   [&context, directory](const QString& goods) {
                     ChartDialog(context, GoodsChartForm(), goods, directory->window()).exec();
                   });
  return directory;
}

template <typename Dialog>
QWidget* Run(AppContext& context, QWidget* parent) {
  Dialog(context, parent).exec();
  return nullptr;
}

template <PartyKind kind>
QWidget* RunParties(AppContext& context, QWidget* parent) {
  PartyBrowser(context, kind, parent).exec();
  return nullptr;
}

template <const ReportForm& (*form)()>
QWidget* RunReport(AppContext& context, QWidget* parent) {
  ReportDialog(context, form(), parent).exec();
  return nullptr;
}

template <const ChartForm& (*form)()>
QWidget* RunChart(AppContext& context, QWidget* parent) {
  ChartDialog(context, form(), {}, parent).exec();
  return nullptr;
}

QWidget* RunOrder(AppContext& context, QWidget* parent) {
  ShowOrder(context, parent);
  return nullptr;
}

QWidget* MakeNothing(AppContext&, QWidget*) { return nullptr; }

struct ScreenRow {
  Place place;
  QWidget* (*open)(AppContext& context, QWidget* parent);
};

constexpr auto kScreens = std::to_array<ScreenRow>({
    {kStock, &Make<OnHandScreen>},
    {kReceipts, &MakeRegister<DocumentKind::kReceipt>},
    {kShipments, &MakeRegister<DocumentKind::kShipment>},
    {kTransfers, &MakeRegister<DocumentKind::kTransfer>},
    {kPrices, &Make<PriceScreen>},
    {kOpening, &Run<OpeningBalancesDialog>},
    {kSalesReport, &RunReport<&SalesReportForm>},
    {kSpeedReport, &RunReport<&SpeedReportForm>},
    {kSalesChart, &RunChart<&SalesChartForm>},
    {kGoodsChart, &RunChart<&GoodsChartForm>},
    {kFlowReport, &RunReport<&FlowReportForm>},
    {kFirms, &RunParties<PartyKind::kFirm>},
    {kGoods, &MakeGoodsDirectory},
    {kSuppliers, &RunParties<PartyKind::kSupplier>},
    {kClients, &RunParties<PartyKind::kClient>},
    {kWarehouses, &Run<WarehousesDialog>},
    {kHome, &MakeNothing},
    {kCurrency, &Run<CurrencyDialog>},
    {kClientsReport, &RunReport<&ClientsReportForm>},
    {kSuppliersReport, &RunReport<&SuppliersReportForm>},
    {kMarginReport, &RunReport<&MarginReportForm>},
    {kAbcReport, &RunReport<&AbcReportForm>},
    {kOrder, &RunOrder},
});
static_assert(IsInOrder(kScreens, &ScreenRow::place));

}  // namespace

QWidget* OpenScreen(Place place, AppContext& context, QWidget* parent) {
  context.show_goods_history = [&context](QWidget* over, const QString& goods,
                                          const QString& warehouse) {
    ShowGoodsHistory(context, goods, warehouse, over);
  };
  return kScreens[static_cast<size_t>(place)].open(context, parent);
}

}  // namespace kladez
