#include "screens/directories/QuantityDialog.h"

#include "formats/Numbers.h"
#include "ui/controls/Fields.h"

namespace kladez {

using namespace Qt::StringLiterals;

QuantityDialog::QuantityDialog(const QString& title, const QString& prompt, const QString& value,
                               const QString& price, const QString& price_caption,
                               const QuantityNotes& notes, QWidget* parent)
    : NumbersDialog(u"colvo"_s, title.isEmpty() ? u"Кол-во"_s : title, notes.goods, parent),
      quantity_(new TextLineNumber(this)),
      price_(new TextLineDecimal(this)),
      asks_price_(!price.isEmpty()) {
  quantity_->setObjectName(u"Text1"_s);
  price_->setObjectName(u"Text4"_s);
  AddField(prompt, quantity_, value);
  if (asks_price_) {
    AddField(price_caption, price_, price);
  } else {
    price_->hide();
  }
  if (notes.on_hand) {
    AddNote(u"onHand"_s, quantity_, [notes](const QString& quantity) {
      return NoteOnHand(*notes.on_hand, quantity, notes.unit, notes.flow);
    });
  }
  if (asks_price_ && !notes.cost.isEmpty()) {
    AddNote(u"margin"_s, price_, [notes](const QString& asked) {
      return NoteOnPrice(asked, notes.cost, notes.cost_is);
    });
  }
  Finish(quantity_);
}

QuantityAnswer QuantityDialog::Answer() const {
  return {quantity_->text(), asks_price_ ? FormatMoney(NumberOr(price_->text())) : u"0"_s};
}

std::optional<QuantityAnswer> AskQuantity(QWidget* parent, const QString& title,
                                          const QString& prompt, const QString& value,
                                          const QString& price, const QString& price_caption,
                                          const QuantityNotes& notes) {
  QuantityDialog dialog(title, prompt, value, price, price_caption, notes, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.Answer();
}

}  // namespace kladez
