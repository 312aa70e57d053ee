#include "screens/stock/LineDialog.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "formats/Numbers.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"

namespace kladez {

using namespace Qt::StringLiterals;

LineDialog::LineDialog(const DraftLine& line, QWidget* parent) : QDialog(parent) {
  setObjectName(u"change"_s);
  setWindowTitle(u"Изменить"_s);
  Text1 = new TextLine(this);
  Text2 = new TextLineNumber(this);
  Text3 = new TextLine(this);
  Text4 = new TextLineDecimal(this);
  Text5 = new TextLineDecimal(this);
  Text1->setText(line.line.name);
  Text1->setCursorPosition(0);
  Text2->setText(ToNumberOr(line.line.quantity));
  Text3->setText(line.line.unit);
  Text4->setText(FormatMoney(NumberOr(line.line.price)));
  Text5->setText(line.amount);

  auto* form = new QFormLayout;
  form->setSpacing(look::kGrid);
  const auto add = [&](const QString& caption, TextLine* field, const QString& name,
                       const QString& hint) {
    field->setObjectName(name);
    form->addRow(NewLabel(caption, field, this), WithHint(field, HintFor(u"change", hint)));
  };
  add(u"Т&овар:"_s, Text1, u"Text1"_s, u"Товар"_s);
  add(u"&Кол-во:"_s, Text2, u"Text2"_s, u"Количество товара"_s);
  add(u"&Ед. изм.:"_s, Text3, u"Text3"_s, u"Единица измерения"_s);
  add(u"&Цена:"_s, Text4, u"Text4"_s, u"Цена"_s);
  add(u"&Сумма:"_s, Text5, u"Text5"_s, u"Сумма"_s);
  // What a line is called is the goods directory's business, and its sum follows from the rest.
  for (TextLine* field : {Text1, Text3, static_cast<TextLine*>(Text5)}) MakeReadOnly(field);

  auto* ok = NewCommand(this, u"Command1"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(form);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(ok, cancel));
  setMinimumWidth(52 * look::kGrid);

  for (TextLine* field : {static_cast<TextLine*>(Text2), static_cast<TextLine*>(Text4)}) {
    connect(field, &TextLine::Change, this, &LineDialog::Recompute);
  }
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  Text2->setFocus();
  Text2->selectAll();
}

QString LineDialog::Quantity() const { return Text2->text(); }

QString LineDialog::Price() const { return Text4->text(); }

QString LineDialog::Amount() const { return Text5->text(); }

void LineDialog::Recompute() {
  // A product that overflows leaves the field as it stands.
  if (const auto amount = LineAmount(Quantity(), Price())) Text5->setText(*amount);
}

}  // namespace kladez
