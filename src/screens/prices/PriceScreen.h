// "Прайс-лист": edits the sale prices of a warehouse's price lists.
#pragma once

#include <QWidget>

#include "ui/AppContext.h"

namespace kladez {

class PriceBrowser;

class PriceScreen : public QWidget {
  Q_OBJECT

 public:
  explicit PriceScreen(AppContext& context, QWidget* parent = nullptr);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  PriceBrowser* browser_;
};

}  // namespace kladez
