#include "screens/stock/LineDialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "formats/Numbers.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

QLabel* NewNote(const QString& name, QWidget* parent) {
  auto* note = new QLabel(parent);
  note->setObjectName(name);
  note->setTextFormat(Qt::PlainText);
  note->hide();
  return note;
}

}  // namespace

LineDialog::LineDialog(const DraftLine& line, QWidget* parent, const LineSurroundings& around)
    : QDialog(parent),
      line_(line.line),
      around_(around),
      stock_note_(NewNote(u"stock_note"_s, this)),
      price_note_(NewNote(u"price_note"_s, this)) {
  setObjectName(u"change"_s);
  setWindowTitle(u"Изменить"_s);
  name_ = new TextLine(this);
  quantity_ = new TextLineNumber(this);
  unit_ = new TextLine(this);
  price_ = new TextLineDecimal(this);
  amount_ = new TextLineDecimal(this);
  name_->setText(line.line.name);
  name_->setCursorPosition(0);
  quantity_->setText(ToNumberOr(line.line.quantity));
  unit_->setText(line.line.unit);
  price_->setText(FormatMoney(NumberOr(line.line.price)));
  amount_->setText(line.amount);

  auto* form = new QFormLayout;
  form->setSpacing(look::kGrid);
  const auto add = [&](const QString& caption, TextLine* field, const QString& name,
                       const QString& hint) {
    field->setObjectName(name);
    form->addRow(NewLabel(caption, field, this), WithHint(field, HintFor(u"change", hint)));
  };
  add(u"Т&овар:"_s, name_, u"Text1"_s, u"Товар"_s);
  add(u"&Кол-во:"_s, quantity_, u"Text2"_s, u"Количество товара"_s);
  add(u"&Ед. изм.:"_s, unit_, u"Text3"_s, u"Единица измерения"_s);
  add(u"&Цена:"_s, price_, u"Text4"_s, u"Цена"_s);
  add(u"&Сумма:"_s, amount_, u"Text5"_s, u"Сумма"_s);
  // What a line is called is the goods directory's business, and its sum follows from the rest.
  for (TextLine* field : {name_, unit_, static_cast<TextLine*>(amount_)}) MakeReadOnly(field);

  auto* ok = NewCommand(this, u"Command1"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(form);
  layout->addWidget(stock_note_);
  layout->addWidget(price_note_);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(ok, cancel));
  setMinimumWidth(look::ByLetters(this, 52));

  for (TextLine* field : {static_cast<TextLine*>(quantity_), static_cast<TextLine*>(price_)}) {
    connect(field, &TextLine::Change, this, &LineDialog::Recompute);
  }
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  ShowNotes();
  quantity_->setFocus();
  quantity_->selectAll();
}

QString LineDialog::Quantity() const { return quantity_->text(); }

QString LineDialog::Price() const { return price_->text(); }

QString LineDialog::Amount() const { return amount_->text(); }

void LineDialog::Recompute() {
  // A product that overflows leaves the field as it stands.
  if (const auto amount = LineAmount(Quantity(), Price())) amount_->setText(*amount);
  ShowNotes();
}

void LineDialog::ShowNotes() {
  const auto show = [](QLabel* label, const LineNote& note) {
    look::Paint(label, QPalette::WindowText, note.amiss ? look::kWarning : look::kQuiet);
    label->setText(note.text);
    label->setVisible(!note.text.isEmpty());
  };
  show(stock_note_, around_.on_hand
                        ? NoteOnHand(*around_.on_hand, Quantity(), line_.unit, around_.flow)
                        : LineNote());
  show(price_note_,
       around_.is_sold ? NoteOnPrice(Price(), line_.cost, around_.cost_is) : LineNote());
}

}  // namespace kladez
