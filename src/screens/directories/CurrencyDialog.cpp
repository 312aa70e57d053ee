#include "screens/directories/CurrencyDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "books/directories/MainCurrency.h"
#include "books/printing/DocumentTotals.h"
#include "formats/DatabaseFiles.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/FollowedFiles.h"
#include "ui/controls/Messages.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"

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
  layout->addWidget(NewTaxes());
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(ok, cancel));
  TabByEye(this);
  Read();
  fields_.front()->setFocus();
  const auto is_changed = [this] { return Texts() != read_; };
  new UnsavedWork(this, {.is_changed = is_changed, .save = [this] { return Save(); }});
  files_ = new FollowedFiles(this, {.is_current = [this] { return IsCurrent(); },
                                    .is_changed = is_changed,
                                    .read_again = [this] { Read(); }});
  connect(ok, &QPushButton::clicked, this, [this] {
    if (Save()) accept();
  });
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
    field->setMinimumWidth(look::ByLetters(field, 25));
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

QGroupBox* CurrencyDialog::NewTaxes() {
  auto* frame = new QGroupBox(u"Налоги в печатных формах"_s, this);
  frame->setObjectName(u"taxes"_s);
  auto* grid = new QGridLayout(frame);
  look::SetDialogMargins(grid);
  grid->setColumnStretch(3, 1);
  const PrintParameters papers;
  const auto add = [&](const QString& name, const QString& caption, const QString& otherwise) {
    auto* field = new TextLine(frame);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setFixedWidth(look::ByLetters(field, 8));
    field->setObjectName(name);
    auto* label = new QLabel(caption, frame);
    label->setBuddy(field);
    auto* example = new QLabel(u"(пусто: "_s + otherwise + u')', frame);
    look::MakeQuiet(example);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(example, row, 2);
    return field;
  };
  vat_ = add(u"vat"_s, u"Н&ДС, %:"_s, papers.vat);
  sales_tax_ = add(u"sales_tax"_s, u"Н&СП, %:"_s, papers.sales_tax);
  no_taxes_ = new QLabel(u"Файл ставок повреждён: запишите их снова."_s, frame);
  no_taxes_->setObjectName(u"no_taxes"_s);
  look::MakeWarning(no_taxes_);
  grid->addWidget(no_taxes_, grid->rowCount(), 0, 1, -1);
  return frame;
}

void CurrencyDialog::Read() {
  const Currency currency = LoadMainCurrency(context_.data, context_.session, file_);
  for (size_t i = 0; i < fields_.size(); ++i) fields_[i]->setText(currency.forms[i]);
  const std::optional<TaxRates> rates = LoadTaxRates(context_.data, context_.session, rates_file_);
  vat_->setText(rates.value_or(TaxRates()).vat);
  sales_tax_->setText(rates.value_or(TaxRates()).sales_tax);
  no_taxes_->setVisible(!rates);
  read_ = Texts();
}

bool CurrencyDialog::IsCurrent() const {
  const Session& session = context_.session;
  return IsStill(file_, context_.data, session.Path(files::kCurrency)) &&
         IsStill(rates_file_, context_.data, session.Path(files::kTaxRates));
}

QStringList CurrencyDialog::Texts() const {
  QStringList texts = {vat_->text(), sales_tax_->text()};
  for (const TextLine* field : fields_) texts.append(field->text());
  return texts;
}

bool CurrencyDialog::Save() {
  Currency currency;
  for (size_t i = 0; i < fields_.size(); ++i) currency.forms[i] = fields_[i]->text();
  TaxRates rates;
  const struct {
    const TextLine* field;
    QString TaxRates::*percent;
  } taxes[] = {{vat_, &TaxRates::vat}, {sales_tax_, &TaxRates::sales_tax}};
  for (const auto& [field, percent] : taxes) {
    const std::optional<QString> kept = TaxPercent(field->text());
    if (!kept) {
      ShowError(this, u"Ставка налога «"_s + field->text() + u"» - не число."_s);
      return false;
    }
    rates.*percent = *kept;
  }
  return files_->Save([&] {
    SaveMainCurrency(context_.data, context_.session, currency, file_, rates, rates_file_);
  });
}

}  // namespace kladez
