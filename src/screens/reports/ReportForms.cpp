#include "screens/reports/ReportForms.h"

#include "books/reports/FlowReport.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"

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
  static const ReportForm form{{u"otppr", u"Отчет по продажам", u"vnot1.htm", kOk, kCancel},
                               &Make<&CollectSales, &WriteSalesReport>};
  return form;
}

const ReportForm& SpeedReportForm() {
  static const ReportForm form{{u"otrpt", u"Скорость реализации", u"vnot2.htm", kOk, kCancel},
                               &Make<&CollectSpeed, &WriteSpeedReport>};
  return form;
}

const ReportForm& FlowReportForm() {
  static const ReportForm form{
      {u"otpruh", u"Отчет по поступлению/реализации", u"vnot5.htm", kOk, kCancel},
      &Make<&CollectFlow, &WriteFlowReport>};
  return form;
}

}  // namespace kladez
