#include "screens/prices/PriceScreen.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "screens/prices/PriceBrowser.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

PriceScreen::PriceScreen(AppContext& context, QWidget* parent)
    : QWidget(parent), browser_(new PriceBrowser(context, PriceUse::kEditor, this)) {
  setObjectName(u"Price"_s);
  setWindowTitle(u"Прайс-лист"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addWidget(browser_);
  setFocusProxy(browser_);
  connect(browser_, &PriceBrowser::CloseAsked, this, &QWidget::close);
  browser_->ChooseWarehouse(context.session.warehouses.value(0));
}

void PriceScreen::closeEvent(QCloseEvent* event) {
  browser_->Leave();
  QWidget::closeEvent(event);
}

}  // namespace kladez
