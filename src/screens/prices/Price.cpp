#include "screens/prices/Price.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "screens/prices/PriceBrowser.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

Price::Price(AppContext& context, QWidget* parent)
    : QWidget(parent), browser_(new PriceBrowser(context, PriceScreen::kEditor, this)) {
  setObjectName(u"Price"_s);
  setWindowTitle(u"Прайс-лист"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addWidget(browser_);
  setFocusProxy(browser_);
  connect(browser_, &PriceBrowser::CloseAsked, this, &QWidget::close);
  browser_->ChooseWarehouse(context.session.SkladNames.value(0));
}

void Price::closeEvent(QCloseEvent* event) {
  browser_->Leave();
  QWidget::closeEvent(event);
}

}  // namespace kladez
