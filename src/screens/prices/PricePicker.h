// "Прайс-лист" as the picker of shipments and transfers: the choice of a list is the choice between
// retail and wholesale prices. It asks quantity and price of the row chosen, hands it over, and
// stays open for the next one.
#pragma once

#include <QDialog>

#include "books/directories/GoodsPick.h"
#include "books/stock/LineNotes.h"
#include "ui/AppContext.h"

namespace kladez {

class PriceBrowser;

class PricePicker : public QDialog {
  Q_OBJECT

 public:
  // Shows the price lists of the warehouse that the goods leave, the named one first where there is
  // one.
  PricePicker(AppContext& context, const QString& warehouse, const QString& price_list,
              QWidget* parent = nullptr);

  // What the document says of the goods in its warehouse, told beside the quantity.
  void TellOnHand(StockAfter on_hand);

  void done(int result) override;

 signals:
  // Name and unit of the row, its purchase price as `cost`, quantity and "#0.00" sale price as they
  // were answered.
  void Picked(const GoodsPick& pick);

 private:
  PriceBrowser* browser_;
};

}  // namespace kladez
