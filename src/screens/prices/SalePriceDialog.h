// "Изменить цену в прайсе": the sale price of one row of a price list.
#pragma once

#include "screens/directories/NumbersDialog.h"

namespace kladez {

class TextLineDecimal;
struct PriceRow;

class SalePriceDialog : public NumbersDialog {
  Q_OBJECT

 public:
  explicit SalePriceDialog(const PriceRow& row, QWidget* parent = nullptr);

  QString Price() const;  // "#0.00"

 private:
  TextLineDecimal* price_;
};

}  // namespace kladez
