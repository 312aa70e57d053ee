#include "screens/prices/SalePriceDialog.h"

#include "books/prices/PriceList.h"
#include "formats/Numbers.h"
#include "ui/controls/Fields.h"

namespace kladez {

using namespace Qt::StringLiterals;

SalePriceDialog::SalePriceDialog(const PriceRow& row, QWidget* parent)
    : NumbersDialog(u"prChange"_s, u"Изменить цену в прайсе"_s, row.name, parent),
      price_(new TextLineDecimal(this)) {
  price_->setObjectName(u"Text1"_s);
  AddField(u"&Цена:"_s, price_, MoneyText(row.sale));
  // Whoever may change prices may see what was paid.
  AddNote(u"margin"_s, price_, [cost = row.purchase](const QString& asked) {
    return NoteOnPrice(asked, cost, CostIs::kShown);
  });
  Finish(price_);
}

QString SalePriceDialog::Price() const { return MoneyText(price_->text()); }

}  // namespace kladez
