#include "screens/directories/PartyForm.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "formats/Numbers.h"
#include "screens/directories/PartyTexts.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Of a bank account, the longest number of the form.
constexpr int kAccountFigures = 20;

// Fields that fill a whole line of the form; the others stand two in a line.
bool IsWide(PartyField field) {
  using enum PartyField;
  return field == kName || field == kLegalAddress || field == kActualAddress || field == kContact ||
         field == kShipper;
}

}  // namespace

PartyForm::PartyForm(PartyKind kind, const Party& party, QWidget* parent,
                     const std::optional<TermsEntry>& terms)
    : QDialog(parent) {
  setObjectName(ScreensOf(kind).form.toString());
  setWindowTitle(ScreensOf(kind).form_title.toString());
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(look::kGrid);
  grid->setVerticalSpacing(look::kGrid);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  int line = 0;
  int half = 0;
  for (const PartyField field : FieldsOf(kind)) {
    const bool wide = IsWide(field);
    if (wide && half == 1) {
      ++line;
      half = 0;
    }
    auto* edit = new TextLine(this);
    edit->setObjectName(u"field%1"_s.arg(fields_.size() + 1));
    ShowText(edit, party.value(static_cast<qsizetype>(fields_.size())));
    if (!wide) KeepRoomFor(edit, kAccountFigures);
    fields_.push_back(edit);
    auto* label = new QLabel(CaptionOf(field).caption.toString(), this);
    label->setBuddy(edit);
    grid->addWidget(label, line, 2 * half, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(edit, line, 2 * half + 1, 1, wide ? 3 : 1);
    half = wide ? 0 : 1 - half;
    if (half == 0) ++line;
  }
  auto* ok = NewCommand(this, u"ok"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(grid);
  if (terms) AddTerms(layout, *terms);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(ok, cancel));
  TabByEye(this);
  resize(sizeHint().expandedTo(QSize(look::ByLetters(this, 85), 0)));
  fields_.front()->setFocus();
  new UnsavedWork(this, {.is_changed = [this, before = Texts()] { return Texts() != before; },
                         .save =
                             [this] {
                               Ok();
                               return isHidden();
                             }});
  connect(ok, &QPushButton::clicked, this, &PartyForm::Ok);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void PartyForm::AddTerms(QVBoxLayout* layout, const TermsEntry& entry) {
  price_list_ = NewFreeChoice(this, u"price_list"_s);
  price_list_->addItem({});
  price_list_->addItems(entry.price_lists);
  price_list_->setCurrentText(entry.terms.price_list);
  discount_ = new TextLineNumber(this);
  discount_->setObjectName(u"discount"_s);
  discount_->setText(entry.terms.discount);
  discount_->setFixedWidth(look::ByLetters(discount_, 10));
  auto* row = new QHBoxLayout;
  AddChoice(row, u"Прайс-лист:"_s, price_list_, HintFor(u"sprklientnew", u"Прайс-лист"));
  row->addSpacing(look::kGrid);
  row->addWidget(NewLabel(u"Скидка %:"_s, discount_, this));
  row->addLayout(WithHint(discount_, HintFor(u"sprklientnew", u"Скидка %")));
  layout->addLayout(row);
}

ClientTerms PartyForm::Terms() const {
  if (price_list_ == nullptr) return {};
  return {price_list_->currentText(), discount_->text()};
}

QStringList PartyForm::Texts() const {
  return Record() + QStringList{Terms().price_list, Terms().discount};
}

Party PartyForm::Record() const {
  Party party;
  for (const TextLine* field : fields_) party.append(field->text());
  return party;
}

void PartyForm::Ok() {
  if (fields_.front()->text().isEmpty()) {
    fields_.front()->setFocus();
    return;
  }
  if (NumberOr(Terms().discount) > 100) {
    discount_->setFocus();
    discount_->SetFault(u"Скидка не бывает больше 100 %"_s);
    return;
  }
  accept();
}

}  // namespace kladez
