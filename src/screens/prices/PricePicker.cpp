#include "screens/prices/PricePicker.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/prices/PriceBrowser.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

PricePicker::PricePicker(AppContext& context, const QString& warehouse, const QString& price_list,
                         QWidget* parent)
    : QDialog(parent), browser_(new PriceBrowser(context, PriceUse::kPicker, this)) {
  setObjectName(u"price2"_s);
  setWindowTitle(u"Прайс-лист"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(browser_);
  resize(look::ByLetters(this, 90, 64));
  browser_->PickCommand()->setDefault(true);
  browser_->List()->setFocus();
  connect(browser_, &PriceBrowser::CloseAsked, this, &QDialog::reject);
  connect(browser_, &PriceBrowser::Picked, this, &PricePicker::Picked);
  browser_->ChooseWarehouse(warehouse);
  if (!price_list.isEmpty()) browser_->ChooseListNamed(price_list);
}

void PricePicker::TellOnHand(StockAfter on_hand) { browser_->TellOnHand(std::move(on_hand)); }

void PricePicker::done(int result) {
  browser_->Leave();
  QDialog::done(result);
}

}  // namespace kladez
