#include "screens/reports/ReportForms.h"

#include "books/reports/FlowReport.h"
#include "books/reports/GoodsReport.h"
#include "books/reports/PartyReport.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"
#include "books/reports/ToldTables.h"

namespace kladez {
namespace {

// Reading takes longer than writing.
constexpr double kReading = 0.75;

template <auto collect, auto write>
void Make(const AppContext& context, const ReportScope& scope, const Progress& progress) {
  const auto report = collect(context.data, context.session, scope, progress.Piece(0, kReading));
  context.print_outs.WriteInPieces(kReportPage.toString(), [&](const ByteSink& sink) {
    write(report, scope, sink, progress.Piece(kReading, 1));
  });
}

constexpr QStringView kOk = u"OK";
constexpr QStringView kCancel = u"О&тмена";

}  // namespace

const ReportForm& SalesReportForm() {
  static const ReportForm form{{u"otppr", u"Отчет по продажам", kOk, kCancel},
                               &Make<&CollectSales, &WriteSalesReport>,
                               &CollectSalesTable};
  return form;
}

const ReportForm& SpeedReportForm() {
  static const ReportForm form{{u"otrpt", u"Скорость реализации", kOk, kCancel},
                               &Make<&CollectSpeed, &WriteSpeedReport>,
                               &CollectSpeedTable};
  return form;
}

const ReportForm& FlowReportForm() {
  static const ReportForm form{{u"otpruh", u"Отчет по поступлению/реализации", kOk, kCancel},
                               &Make<&CollectFlow, &WriteFlowReport>,
                               &CollectFlowTable};
  return form;
}

const ReportForm& ClientsReportForm() {
  static const ReportForm form{
      {u"otklient", u"Отчет по клиентам", kOk, kCancel}, nullptr, &CollectClients};
  return form;
}

const ReportForm& SuppliersReportForm() {
  static const ReportForm form{
      {u"otpost", u"Отчет по поставщикам", kOk, kCancel}, nullptr, &CollectSuppliers};
  return form;
}

const ReportForm& MarginReportForm() {
  static const ReportForm form{
      {u"otval", u"Валовая прибыль по товарам", kOk, kCancel}, nullptr, &CollectMargins};
  return form;
}

const ReportForm& AbcReportForm() {
  static const ReportForm form{
      {u"otabc", u"ABC-анализ по выручке", kOk, kCancel}, nullptr, &CollectAbc};
  return form;
}

}  // namespace kladez
