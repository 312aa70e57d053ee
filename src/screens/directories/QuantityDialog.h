// The dialog that asks for a quantity and, on request, a price.
#pragma once

#include <QDialog>
#include <optional>

class QLabel;
class QPushButton;

namespace kladez {

class TextLineDecimal;
class TextLineNumber;

struct QuantityAnswer {
  QString quantity;  // as entered
  QString price;     // "#0.00"; "0" where no price was asked
};

class QuantityDialog : public QDialog {
  Q_OBJECT

 public:
  QuantityDialog(const QString& title, const QString& prompt, const QString& value,
                 const QString& price, const QString& price_caption, QWidget* parent);

  QuantityAnswer Answer() const;

  TextLineNumber* Text1;   // the prompt of the caller, "Кол-во:"
  TextLineDecimal* Text4;  // "Цена реализации:", or the caption of the caller
  QPushButton* Command1;   // "OK"
  QPushButton* Command2;   // "Отмена"

 private:
  bool asks_price_;
};

// Nothing when cancelled. Without a price only the quantity is asked.
std::optional<QuantityAnswer> AskQuantity(
    QWidget* parent, const QString& title, const QString& prompt, const QString& value,
    const QString& price = {}, const QString& price_caption = QStringLiteral(u"Цена реализации:"));

}  // namespace kladez
