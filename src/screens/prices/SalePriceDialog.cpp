#include "screens/prices/SalePriceDialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "formats/Numbers.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"

namespace kladez {

using namespace Qt::StringLiterals;

SalePriceDialog::SalePriceDialog(const QString& name, const QString& price, QWidget* parent)
    : QDialog(parent) {
  setObjectName(u"prChange"_s);
  setWindowTitle(u"Изменить цену в прайсе"_s);
  auto* goods = new QLabel(this);
  goods->setObjectName(u"Label1"_s);
  goods->setTextFormat(Qt::PlainText);
  goods->setText(name);
  goods->setWordWrap(true);
  Text1 = new TextLineDecimal(this);
  Text1->setObjectName(u"Text1"_s);
  Text1->setText(MoneyText(price));
  Command1 = NewCommand(this, u"Command1"_s, u"OK"_s);
  Command2 = NewCommand(this, u"Command2"_s, u"О&тмена"_s);

  auto* form = new QFormLayout;
  form->setSpacing(look::kGrid);
  form->addRow(u"&Цена:"_s, Text1);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(goods);
  layout->addLayout(form);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(Command1, Command2));
  setMinimumWidth(40 * look::kGrid);

  connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
  Text1->setFocus();
  Text1->selectAll();
}

QString SalePriceDialog::Price() const { return MoneyText(Text1->text()); }

}  // namespace kladez
