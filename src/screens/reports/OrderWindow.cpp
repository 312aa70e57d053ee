#include "screens/reports/OrderWindow.h"

#include "books/directories/WarehouseDirectory.h"
#include "books/reports/OrderList.h"
#include "screens/reports/ReportDialog.h"
#include "screens/reports/ReportWindow.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"

namespace kladez {

using namespace Qt::StringLiterals;

void ShowOrder(AppContext& context, QWidget* parent) {
  Guarded(parent, [&] {
    TableReport order;
    {
      LongWork work(parent, u"Читаются документы..."_s);
      order = CollectOrder(context.data, context.session, work.Told());
    }
    const ReportScope scope{kAllWarehouses.toString(),
                            {PeriodKind::kAll, context.clock.Today(), {}, {}}};
    const auto print = [&context, order, scope](QWidget*) {
      context.print_outs.WriteInPieces(kReportPage.toString(), [&](const ByteSink& sink) {
        WriteTableReport(order, scope, sink, {});
      });
    };
    const ReportWindowTexts texts{
        u"order", u"Всего хватает, заказывать нечего. Минимум вписывают в карточку товара."};
    ReportWindow(context, order, scope, print, parent, texts).exec();
  });
}

}  // namespace kladez
