#include "ui/ScannerSearch.h"

#include "books/directories/GoodsExtras.h"
#include "ui/controls/Look.h"
#include "ui/controls/Messages.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/ScannerKeys.h"

namespace kladez {

using namespace Qt::StringLiterals;

void TellUnknownBarcode(QWidget* screen, const QString& code, const QString& goods) {
  ShowInformation(
      screen, goods.isEmpty()
                  ? u"Товара со штрихкодом %1 нет. Впишите штрихкод в карточку товара."_s.arg(code)
                  : u"Штрихкод %1 — это «%2», но здесь такого товара нет."_s.arg(
                        code, goods.left(look::kLongestText)));
}

void SelectByScanner(QWidget* screen, const AppContext& context, RecordList* list) {
  new ScannerKeys(screen, [screen, &context, list](const QString& code) {
    const QString goods = FindByBarcode(context.data, context.session, code);
    int row = list->Records()->rowCount() - 1;
    while (row >= 0 && list->Records()->index(row, 0).data().toString() != goods) --row;
    if (goods.isEmpty() || row < 0) {
      TellUnknownBarcode(screen, code, goods);
      return;
    }
    list->SelectRow(row);
    list->setFocus(Qt::OtherFocusReason);
  });
}

}  // namespace kladez
