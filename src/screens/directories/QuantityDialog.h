// The dialog that asks for a quantity and, on request, a price.
#pragma once

#include <optional>

#include "screens/directories/NumbersDialog.h"

namespace kladez {

class TextLineDecimal;
class TextLineNumber;

struct QuantityAnswer {
  QString quantity;  // as entered
  QString price;     // "#0.00"; "0" where no price was asked
};

// What the dialog tells besides. What is left empty is not told.
struct QuantityNotes {
  QString goods = {};  // the name above the fields
  QString unit = {};
  std::optional<double> on_hand = {};  // what the warehouse holds after the lines of the document
  Flow flow = Flow::kOut;              // where the goods go
  QString cost = {};                   // the purchase price that the price is compared with
  CostIs cost_is = CostIs::kShown;
};

class QuantityDialog : public NumbersDialog {
  Q_OBJECT

 public:
  QuantityDialog(const QString& title, const QString& prompt, const QString& value,
                 const QString& price, const QString& price_caption, const QuantityNotes& notes,
                 QWidget* parent);

  QuantityAnswer Answer() const;

 private:
  TextLineNumber* quantity_;
  TextLineDecimal* price_;
  const bool asks_price_;
};

// Nothing when cancelled. Without a price only the quantity is asked.
std::optional<QuantityAnswer> AskQuantity(
    QWidget* parent, const QString& title, const QString& prompt, const QString& value,
    const QString& price = {}, const QString& price_caption = QStringLiteral(u"Цена реализации:"),
    const QuantityNotes& notes = {});

}  // namespace kladez
