#include "screens/stock/documents/DocumentEditor.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "books/directories/ClientTerms.h"
#include "books/prices/PriceStore.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "screens/stock/documents/DocumentLines.h"
#include "screens/stock/documents/DocumentNotes.h"
#include "screens/stock/documents/DraftSaving.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Commands.h"
#include "ui/controls/DateField.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/ScannerKeys.h"
#include "ui/controls/UnsavedWork.h"
#include "ui/controls/WrapRow.h"

namespace kladez {

using namespace Qt::StringLiterals;
using H = DocumentHead;

namespace {

constexpr int kLettersAcross = 110;

}  // namespace

DocumentEditor::DocumentEditor(AppContext& context, DocumentDraft draft, QWidget* parent,
                               NumberCount count_of_number)
    : QDialog(parent),
      context_(context),
      screens_(ScreensOf(draft.Kind())),
      draft_(std::move(draft)),
      first_number_(draft_.IsNew() ? QString() : draft_.Head().number),
      count_of_number_(std::move(count_of_number)),
      notes_(new DocumentNotes(this)),
      lines_(new DocumentLines(context, draft_, this)) {
  setObjectName(screens_.editor_name);
  setWindowTitle(screens_.editor_caption);

  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(NewHead());
  layout->addWidget(notes_);
  layout->addSpacing(look::kTight);
  layout->addWidget(lines_, 1);
  layout->addLayout(NewFoot());
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(NewEndingRow(ok_, cancel_));

  ShareListKeys(this, lines_->List());
  new ScannerKeys(this, [this](const QString& code) { lines_->TakeScan(code); });
  OrderTabs();
  TakeFields();
  draft_.MarkUnchanged();
  lines_->Refresh();
  ShowSums();
  connect(lines_, &DocumentLines::Changed, this, &DocumentEditor::ShowSums);
  connect(number_, &TextLine::Change, this, &DocumentEditor::ShowNotes);
  connect(notes_, &DocumentNotes::EnterAnewAsked, this, &DocumentEditor::EnterAnew);
  new UnsavedWork(this, {.is_changed =
                             [this] {
                               TakeFields();
                               return draft_.IsChanged();
                             },
                         .save = [this] { return SaveUnasked(); }});
  lines_->List()->SelectRow(0);
  lines_->List()->setFocus();
  // Wide enough for the names of two warehouses, with large letters too.
  const int room = screen()->availableSize().width() - look::kGap;
  const int wanted =
      std::max(look::ByLetters(this, 112), kLettersAcross * fontMetrics().averageCharWidth());
  resize(std::min(room, wanted), look::ByLetters(this, 68));
}

void DocumentEditor::AddField(QHBoxLayout* row, const QString& caption, QWidget* field,
                              const QString& name, const QString& hint) {
  field->setObjectName(name);
  if (row->count() > 0) row->addSpacing(look::kGrid);
  row->addWidget(NewLabel(caption, field, this));
  row->addLayout(WithHint(field, HintFor(screens_.editor_name, hint)),
                 qobject_cast<TextChoice*>(field) != nullptr ? 1 : 0);
}

QLayout* DocumentEditor::NewHead() {
  auto* head = new Columns(look::kGrid);
  const auto new_part = [head](int weight) {
    auto* row = new QHBoxLayout;
    row->setSpacing(look::kGrid);
    head->Add(row, weight);
    return row;
  };
  QHBoxLayout* row = new_part(0);
  number_ = new TextLine(this);
  number_->setText(draft_.Head().number);
  number_->setFixedWidth(look::ByLetters(number_, 12));
  AddField(row, u"&N:"_s, number_, u"number"_s, u"Номер документа"_s);
  date_ = new DateField(ParseDate(draft_.Head().date).value_or(context_.clock.Today()),
                        context_.clock, this);
  AddField(row, u"Д&ата:"_s, date_, u"date"_s, u"Дата создания документа"_s);
  if (BookOf(screens_.kind).has_flag) {
    const bool receipt = screens_.kind == DocumentKind::kReceipt;
    const Session& session = context_.session;
    party_ = new TextChoice(QStringList{u"-"_s} + (receipt ? session.Parties(PartyKind::kSupplier)
                                                           : session.Parties(PartyKind::kClient)),
                            this);
    party_->Choose(draft_.Head().party);
    AddField(new_part(1), screens_.party_caption, party_, u"party"_s, screens_.party_hint);
  } else {
    party_ = NewWarehouse(&H::party);
    AddField(new_part(1), screens_.party_caption, party_, u"party"_s, screens_.party_hint);
    destination_ = NewWarehouse(&H::destination);
    AddField(new_part(1), u"&Куда:"_s, destination_, u"destination"_s, u"Куда"_s);
  }
  return head;
}

TextChoice* DocumentEditor::NewWarehouse(QString DocumentHead::*side) {
  auto* choice = new TextChoice(context_.session.warehouses, this);
  BoundByLetters(choice, 14);
  choice->Choose(draft_.Head().*side);
  connect(choice, &QComboBox::currentIndexChanged, this, [=, this] {
    // A warehouse whose ledger can't be read is not chosen.
    if (!Guarded(this, [&] { draft_.ChooseWarehouse(side, choice->Chosen()); })) {
      const QSignalBlocker quiet(choice);
      choice->Choose(draft_.Head().*side);
    }
    lines_->Refresh();
    ShowSums();
  });
  return choice;
}

void DocumentEditor::AddTotal(QFormLayout* form, const QString& caption, TextLine* field,
                              const QString& name, const QString& hint) {
  field->setObjectName(name);
  field->setFixedWidth(look::ByLetters(field, 16));
  form->addRow(NewLabel(caption, field, this),
               WithHint(field, HintFor(screens_.editor_name, hint)));
}

QLayout* DocumentEditor::NewTotals() {
  auto* form = new QFormLayout;
  form->setSpacing(look::kTight);
  form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  sum_ = new TextLineDecimal(this);
  sum_->setText(draft_.Head().sum);
  AddTotal(form, screens_.sum_caption, sum_, u"Text2"_s, screens_.sum_hint);
  connect(sum_, &TextLine::Change, this, [this] {
    draft_.SetSum(sum_->text());
    ShowNetSum();
  });
  if (!screens_.HasDiscount()) return form;

  AddPriceList(form);
  discount_ = new TextLineNumber(this);
  discount_->setText(draft_.Head().discount);
  AddTotal(form, u"С&кидка %:"_s, discount_, u"Text19"_s, u"Скидка"_s);
  connect(discount_, &TextLine::Change, this, [this] {
    draft_.SetDiscount(discount_->text());
    ShowNetSum();
  });
  // It follows from the two above and can't be typed.
  net_sum_ = new TextLineDecimal(this);
  MakeReadOnly(net_sum_);
  QFont bold(net_sum_->font());
  bold.setBold(true);
  net_sum_->setFont(bold);
  AddTotal(form, u"Сумма со скидкой:"_s, net_sum_, u"DecText1"_s, u"Сумма по счету"_s);
  return form;
}

void DocumentEditor::AddPriceList(QFormLayout* form) {
  const QStringList lists = PriceStore(context_.data, context_.session).Names(draft_.Warehouse());
  price_list_ = new TextChoice(lists, this);
  price_list_->setObjectName(u"price_list"_s);
  price_list_->setFixedWidth(look::ByLetters(price_list_, 16));
  price_list_->setEnabled(!lists.isEmpty());
  form->addRow(NewLabel(u"Пра&йс:"_s, price_list_, this),
               WithHint(price_list_, HintFor(screens_.editor_name, u"Прайс")));
  const auto take = [this] { lines_->SetPriceList(price_list_->Chosen()); };
  connect(price_list_, &QComboBox::currentIndexChanged, this, take);
  take();
  ProposePriceList();
  connect(party_, &QComboBox::currentIndexChanged, this, [this] {
    ProposePriceList();
    ProposeDiscount();
  });
}

// What was agreed with the client is proposed when he is chosen.
void DocumentEditor::ProposePriceList() {
  const ClientTerms terms = FindTerms(context_.data, context_.session, party_->Chosen());
  const int list = price_list_->findData(terms.price_list);
  if (list >= 0) price_list_->setCurrentIndex(list);
}

// A discount that somebody has typed stays.
void DocumentEditor::ProposeDiscount() {
  const ClientTerms terms = FindTerms(context_.data, context_.session, party_->Chosen());
  const QString now = discount_->text();
  const bool untouched = now == proposed_discount_ || NumberOr(now) == 0;
  proposed_discount_ = terms.discount.isEmpty() ? u"0"_s : terms.discount;
  if (untouched) discount_->setText(proposed_discount_);
}

QLayout* DocumentEditor::NewPrints() {
  auto* row = new WrapRow(look::kGrid, look::kTight);
  for (const PrintCommand& command : screens_.prints) {
    QPushButton* button = NewCommand(this, command.name, command.caption, look::IconName::kPrint);
    connect(button, &QPushButton::clicked, this, [this, &command] { Print(command); });
    row->addWidget(button);
    prints_.push_back(button);
  }
  return row;
}

QLayout* DocumentEditor::NewFoot() {
  auto* left = new QVBoxLayout;
  left->setSpacing(look::kGrid);
  if (BookOf(screens_.kind).has_flag) {
    closed_ = new QCheckBox(u"Счет &закрыт"_s, this);
    closed_->setObjectName(u"Check1"_s);
    closed_->setChecked(draft_.Head().IsClosed());
    // What has posted can't be taken back but by deleting the document.
    closed_->setEnabled(!draft_.WasClosed());
    QBoxLayout* flag = WithHint(closed_, HintFor(screens_.editor_name, u"Счет закрыт"));
    flag->addStretch();
    left->addLayout(flag);
  }
  left->addStretch();
  left->addLayout(NewPrints());

  ok_ = NewCommand(this, u"ok"_s, u"OK"_s);
  cancel_ = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  connect(ok_, &QPushButton::clicked, this, &DocumentEditor::Save);
  // Enter alone changes the line under the cursor.
  ok_->setToolTip(u"Ctrl+Enter"_s);
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    connect(new QShortcut(Qt::CTRL | enter, this), &QShortcut::activated, ok_, &QPushButton::click);
  }
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);

  auto* foot = new QHBoxLayout;
  foot->setSpacing(look::kGap);
  foot->addLayout(left, 1);
  foot->addLayout(NewTotals());
  return foot;
}

// As the eye goes, line by line; the commands that end the dialog come last.
void DocumentEditor::OrderTabs() {
  std::vector<QWidget*> order = {number_, date_, party_, destination_};
  order.insert(order.end(), lines_->Commands().begin(), lines_->Commands().end());
  order.insert(order.end(), {lines_->List(), closed_});
  order.insert(order.end(), prints_.begin(), prints_.end());
  order.insert(order.end(), {sum_, price_list_, discount_, ok_, cancel_});
  std::erase(order, nullptr);
  for (size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void DocumentEditor::ShowSums() {
  sum_->setText(draft_.Head().sum);
  ShowNetSum();
  ShowNotes();
}

void DocumentEditor::ShowNotes() {
  const QString number = number_->text();
  const bool taken = count_of_number_ && !number.isEmpty() &&
                     count_of_number_(number) > (number == first_number_ ? 1 : 0);
  notes_->TellNumber(taken ? number : QString());
  notes_->TellPosted(draft_.HasPosted() && draft_.LinesAreChanged());
}

void DocumentEditor::ShowNetSum() {
  if (net_sum_ != nullptr) net_sum_->setText(draft_.Head().net_sum);
}

void DocumentEditor::TakeFields() {
  draft_.SetNumber(number_->text());
  draft_.SetDate(date_->date());
  if (closed_ == nullptr) return;  // the warehouses of a transfer are taken as they are chosen
  draft_.SetParty(party_->Chosen());
  draft_.SetClosed(closed_->isChecked());
}

void DocumentEditor::Print(const PrintCommand& command) {
  if (!FieldsAreSound(this)) return;
  TakeFields();
  Guarded(this, [&] { command.run(context_, draft_.ToPrint(), this); });
}

void DocumentEditor::Save() {
  if (TrySave()) accept();
}

bool DocumentEditor::TrySave() {
  if (!FieldsAreSound(this)) return false;
  TakeFields();
  return SaveDraft(draft_, this);
}

// The way out with "Да": unlike "OK" it says why a document without lines stays where it is.
bool DocumentEditor::SaveUnasked() {
  if (BookOf(screens_.kind).has_flag && draft_.Lines().empty()) {
    ShowInformation(this, u"В документе нет ни одного товара, сохранять нечего."_s);
    return false;
  }
  if (!TrySave()) return false;
  accept();
  return true;
}

void DocumentEditor::EnterAnew() {
  if (!FieldsAreSound(this)) return;
  TakeFields();
  if (EnterDraftAnew(draft_, this)) accept();
}

}  // namespace kladez
