#include "screens/stock/documents/CopyDialog.h"

#include <QFormLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "books/prices/PriceStore.h"
#include "books/prices/TodaysPrices.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

CopyDialog::CopyDialog(AppContext& context, const DocumentDraft& document, QWidget* parent)
    : QDialog(parent),
      context_(context),
      document_(document),
      todays_(new QRadioButton(u"С&егодняшние"_s, this)),
      of_document_(new QRadioButton(u"&Как в документе"_s, this)),
      note_(NewLabel({}, nullptr, this)) {
  setObjectName(u"copydoc"_s);
  setWindowTitle(u"Копия документа"_s);
  const DocumentHead& head = document.Head();
  auto* what = NewLabel(
      u"Накладная %1 от %2, %3. Строк: %4."_s
          .arg(head.number.left(look::kLongestText), head.date, head.party.left(look::kLongestText))
          .arg(document.Lines().size()),
      nullptr, this);
  what->setWordWrap(true);
  note_->setObjectName(u"note"_s);
  note_->setWordWrap(true);

  auto* form = new QFormLayout;
  form->setSpacing(look::kGrid);
  BuildPrices(form);
  auto* ok = NewCommand(this, u"ok"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(what);
  layout->addLayout(form);
  layout->addWidget(note_);
  layout->addStretch();
  layout->addLayout(NewEndingRow(ok, cancel));
  setMinimumWidth(look::ByLetters(this, 56));
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  ShowNote();
  todays_->setFocus();
}

void CopyDialog::BuildPrices(QFormLayout* form) {
  todays_->setObjectName(u"todays"_s);
  of_document_->setObjectName(u"of_document"_s);
  todays_->setChecked(true);
  form->addRow(NewLabel(u"Цены:"_s, nullptr, this),
               WithHint(todays_, HintFor(u"copydoc", u"Сегодняшние цены")));
  form->addRow({}, WithHint(of_document_, HintFor(u"copydoc", u"Цены документа")));
  connect(todays_, &QRadioButton::toggled, this, &CopyDialog::ShowNote);
  if (document_.Kind() == DocumentKind::kReceipt) return;
  const QStringList lists =
      PriceStore(context_.data, context_.session).Names(document_.Warehouse());
  if (lists.isEmpty()) return;
  lists_ = new TextChoice(lists, this);
  lists_->setObjectName(u"price_list"_s);
  form->addRow(NewLabel(u"&Прайс-лист:"_s, lists_, this),
               WithHint(lists_, HintFor(u"copydoc", u"Прайс-лист")));
  if (document_.Kind() == DocumentKind::kShipment) {
    terms_ = FindTerms(context_.data, context_.session, document_.Head().party);
    if (lists.contains(terms_.price_list)) lists_->Choose(terms_.price_list);
  }
  connect(todays_, &QRadioButton::toggled, lists_, &QWidget::setEnabled);
}

CopyChoice CopyDialog::Choice() const {
  return {.todays_prices = todays_->isChecked(),
          .price_list = lists_ == nullptr ? QString() : lists_->Chosen(),
          .discount = todays_->isChecked() ? terms_.discount : QString()};
}

// The same goods lack a price in every list: those that have left the directory.
void CopyDialog::ShowNote() {
  QStringList gone;
  IgnoreErrors([&] {
    const TodaysPrices prices(context_.data, context_.session, DocumentKind::kReceipt, {}, {});
    for (const DraftLine& line : document_.Lines()) {
      if (!prices.PickOf(line.line.name)) gone << line.line.name.left(look::kLongestText);
    }
  });
  note_->setVisible(todays_->isChecked() && !gone.isEmpty());
  if (gone.isEmpty()) return;
  gone.removeDuplicates();
  constexpr qsizetype kNamed = 3;
  QString text = u"Нет в справочнике, цена будет из документа: «%1»"_s.arg(
      gone.first(std::min(kNamed, gone.size())).join(u"», «"_s));
  if (gone.size() > kNamed) text += u" и ещё %1"_s.arg(gone.size() - kNamed);
  note_->setText(text + u'.');
}

}  // namespace kladez
