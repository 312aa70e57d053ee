#include "screens/directories/CurrencyDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "books/directories/MainCurrency.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kFormsOfUnit = 4;

const std::array<QString, kFormsOfUnit>& Captions() {
  static const std::array<QString, kFormsOfUnit> captions = {
      u"Сокращенная форма:"_s, u"Именительный падеж, ед. число:"_s,
      u"Родительный падеж, ед. число:"_s, u"Родительный падеж, множ. число:"_s};
  return captions;
}

}  // namespace

CurrencyDialog::CurrencyDialog(AppContext& context, QWidget* parent)
    : QDialog(parent), context_(context) {
  setObjectName(u"currenc"_s);
  setWindowTitle(u"Основная валюта"_s);
  auto* ok = NewCommand(this, u"ok"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(NewFrame(u"Старшая часть"_s, u"major"_s, 0));
  layout->addWidget(NewFrame(u"Младшая часть"_s, u"minor"_s, kFormsOfUnit));
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(ok, cancel));
  setTabOrder(fields_.back(), ok);
  setTabOrder(ok, cancel);
  const Currency currency = LoadMainCurrency(context.data, context.session, file_);
  for (size_t i = 0; i < fields_.size(); ++i) fields_[i]->setText(currency.forms[i]);
  fields_.front()->setFocus();
  connect(ok, &QPushButton::clicked, this, &CurrencyDialog::Ok);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

QGroupBox* CurrencyDialog::NewFrame(const QString& title, const QString& name, int first) {
  auto* frame = new QGroupBox(title, this);
  frame->setObjectName(name);
  auto* grid = new QGridLayout(frame);
  look::SetDialogMargins(grid);
  grid->setColumnStretch(1, 1);
  const Currency examples = RoubleCurrency();
  for (int i = 0; i < kFormsOfUnit; ++i) {
    auto* field = new TextLine(frame);
    field->setObjectName(u"form%1"_s.arg(first + i + 1));
    field->setMinimumWidth(25 * look::kGrid);
    auto* label = new QLabel(Captions()[i], frame);
    label->setBuddy(field);
    auto* example = new QLabel(u'(' + examples.forms[first + i] + u')', frame);
    look::MakeQuiet(example);
    grid->addWidget(label, i, 0);
    grid->addWidget(field, i, 1);
    grid->addWidget(example, i, 2);
    fields_[first + i] = field;
  }
  return frame;
}

void CurrencyDialog::Ok() {
  Currency currency;
  for (size_t i = 0; i < fields_.size(); ++i) currency.forms[i] = fields_[i]->text();
  const bool saved =
      Guarded(this, [&] { SaveMainCurrency(context_.data, context_.session, currency, file_); });
  if (saved) accept();
}

}  // namespace kladez
