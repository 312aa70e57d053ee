// "Изменить цену в прайсе": the sale price of one row of a price list.
#pragma once

#include <QDialog>

class QPushButton;

namespace kladez {

class TextLineDecimal;

class SalePriceDialog : public QDialog {
  Q_OBJECT

 public:
  SalePriceDialog(const QString& name, const QString& price, QWidget* parent = nullptr);

  QString Price() const;  // "#0.00"

  TextLineDecimal* Text1;  // "Цена:"
  QPushButton* Command1;   // "OK"
  QPushButton* Command2;   // "Отмена"
};

}  // namespace kladez
