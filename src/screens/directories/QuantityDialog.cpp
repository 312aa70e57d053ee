#include "screens/directories/QuantityDialog.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "formats/Numbers.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"

namespace kladez {

using namespace Qt::StringLiterals;

QuantityDialog::QuantityDialog(const QString& title, const QString& prompt, const QString& value,
                               const QString& price, const QString& price_caption, QWidget* parent)
    : QDialog(parent), asks_price_(!price.isEmpty()) {
  setObjectName(u"colvo"_s);
  setWindowTitle(title.isEmpty() ? u"Кол-во"_s : title);
  Text1 = new TextLineNumber(this);
  Text1->setObjectName(u"Text1"_s);
  Text1->setText(value);
  Text4 = new TextLineDecimal(this);
  Text4->setObjectName(u"Text4"_s);
  Text4->setText(price);
  Command1 = NewCommand(this, u"Command1"_s, u"OK"_s);
  Command2 = NewCommand(this, u"Command2"_s, u"О&тмена"_s);

  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  auto* form = new QFormLayout;
  form->setSpacing(look::kGrid);
  form->addRow(NewLabel(prompt, Text1, this), Text1);
  if (asks_price_) {
    form->addRow(NewLabel(price_caption, Text4, this), Text4);
  } else {
    Text4->hide();
  }
  layout->addLayout(form);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(Command1, Command2));
  setMinimumWidth(40 * look::kGrid);

  connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
  Text1->setFocus();
  Text1->selectAll();
}

QuantityAnswer QuantityDialog::Answer() const {
  return {Text1->text(), asks_price_ ? FormatMoney(NumberOr(Text4->text())) : u"0"_s};
}

std::optional<QuantityAnswer> AskQuantity(QWidget* parent, const QString& title,
                                          const QString& prompt, const QString& value,
                                          const QString& price, const QString& price_caption) {
  QuantityDialog dialog(title, prompt, value, price, price_caption, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.Answer();
}

}  // namespace kladez
