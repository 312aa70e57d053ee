#include "reports/screens/ReportForms.h"

#include "reports/FlowReport.h"
#include "reports/SalesReport.h"
#include "reports/SpeedReport.h"

namespace kladez {
namespace {

template <auto collect, auto page>
std::optional<QByteArray> Make(const DataDir& data, const Session& session,
                               const ReportScope& scope, const Progress& progress) {
  const auto report = collect(data, session, scope, progress);
  if (!report) return std::nullopt;
  return page(*report, scope);
}

constexpr QStringView kOk = u"OK";
constexpr QStringView kCancel = u"О&тмена";

}  // namespace

const ReportForm& SalesReportForm() {
  static const ReportForm form{{u"otppr", u"Отчет по продажам", u"vnot1.htm", kOk, kCancel},
                               &Make<&CollectSales, &SalesReportPage>};
  return form;
}

const ReportForm& SpeedReportForm() {
  static const ReportForm form{{u"otrpt", u"Скорость реализации", u"vnot2.htm", kOk, kCancel},
                               &Make<&CollectSpeed, &SpeedReportPage>};
  return form;
}

const ReportForm& FlowReportForm() {
  static const ReportForm form{
      {u"otpruh", u"Отчет по поступлению/реализации", u"vnot5.htm", kOk, kCancel},
      &Make<&CollectFlow, &FlowReportPage>};
  return form;
}

}  // namespace kladez
