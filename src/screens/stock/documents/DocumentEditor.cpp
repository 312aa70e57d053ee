#include "screens/stock/documents/DocumentEditor.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <algorithm>

#include "formats/Dates.h"
#include "screens/stock/LineDialog.h"
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
#include "ui/controls/WrapRow.h"

namespace kladez {

using namespace Qt::StringLiterals;
using H = DocumentHead;

namespace {

constexpr int kLettersAcross = 110;

}  // namespace

DocumentEditor::DocumentEditor(AppContext& context, DocumentKind kind, DocumentDraft draft,
                               QWidget* parent)
    : QDialog(parent), context_(context), screens_(ScreensOf(kind)), draft_(std::move(draft)) {
  setObjectName(screens_.editor_name);
  setWindowTitle(screens_.editor_caption);
  BuildList();

  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(NewHead());
  layout->addSpacing(look::kTight);
  layout->addLayout(NewListHead());
  layout->addWidget(ListView1, 1);
  layout->addLayout(NewFoot());
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(NewEndingRow(ok_, cancel_));

  ShareListKeys(this, ListView1);
  ShowSums();
  ListView1->SelectRow(0);
  ListView1->setFocus();
  // Wide enough for the names of two warehouses, with large letters too.
  const int room = screen()->availableSize().width() - look::kGap;
  const int wanted = std::max(112 * look::kGrid, kLettersAcross * fontMetrics().averageCharWidth());
  resize(std::min(room, wanted), 68 * look::kGrid);
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
  number_->setFixedWidth(12 * look::kGrid);
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
  });
  return choice;
}

void DocumentEditor::BuildList() {
  ListView1 = new RecordList(this);
  ListView1->setObjectName(u"ListView1"_s);
  ListView1->SetRecords(
      NewLineModel(screens_.editor_columns, context_.session.IsSeller(), draft_.Lines(), this));
  ListView1->SetEmptyText(u"Список пуст. Нажмите «Добавить» или клавишу Insert."_s);
  connect(ListView1, &RecordList::InsertPressed, this, &DocumentEditor::Add);
  connect(ListView1, &RecordList::DividePressed, this, &DocumentEditor::Change);
  connect(ListView1, &RecordList::EnterPressed, this, &DocumentEditor::Change);
  connect(ListView1, &RecordList::DoubleClicked, this, &DocumentEditor::Change);
  connect(ListView1, &RecordList::DeletePressed, this, &DocumentEditor::Remove);
}

QLayout* DocumentEditor::NewListHead() {
  using look::IconName;
  add_ = NewCommand(this, u"add"_s, u"&Добавить"_s, IconName::kAdd);
  change_ = NewCommand(this, u"change"_s, u"&Изменить"_s, IconName::kChange);
  remove_ = NewCommand(this, u"remove"_s, u"&Удалить"_s, IconName::kRemove);
  connect(add_, &QPushButton::clicked, this, &DocumentEditor::Add);
  connect(change_, &QPushButton::clicked, this, &DocumentEditor::Change);
  connect(remove_, &QPushButton::clicked, this, &DocumentEditor::Remove);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGrid);
  for (QPushButton* button : {add_, change_, remove_}) row->addWidget(button);
  row->addWidget(
      new HintPicture(HintFor(screens_.editor_name, u"Список товаров"), {ListView1}, this));
  row->addStretch();
  return row;
}

void DocumentEditor::AddTotal(QFormLayout* form, const QString& caption, TextLine* field,
                              const QString& name, const QString& hint) {
  field->setObjectName(name);
  field->setFixedWidth(16 * look::kGrid);
  form->addRow(NewLabel(caption, field, this),
               WithHint(field, HintFor(screens_.editor_name, hint)));
}

QLayout* DocumentEditor::NewTotals() {
  auto* form = new QFormLayout;
  form->setSpacing(look::kTight);
  form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Text2 = new TextLineDecimal(this);
  Text2->setText(draft_.Head().sum);
  AddTotal(form, screens_.sum_caption, Text2, u"Text2"_s, screens_.sum_hint);
  connect(Text2, &TextLine::Change, this, [this] {
    draft_.SetSum(Text2->text());
    ShowNetSum();
  });
  if (!screens_.HasDiscount()) return form;

  Text19 = new TextLineNumber(this);
  Text19->setText(draft_.Head().discount);
  AddTotal(form, u"С&кидка %:"_s, Text19, u"Text19"_s, u"Скидка"_s);
  connect(Text19, &TextLine::Change, this, [this] {
    draft_.SetDiscount(Text19->text());
    ShowNetSum();
  });
  // It follows from the two above and can't be typed.
  DecText1 = new TextLineDecimal(this);
  MakeReadOnly(DecText1);
  QFont bold(DecText1->font());
  bold.setBold(true);
  DecText1->setFont(bold);
  AddTotal(form, u"Сумма со скидкой:"_s, DecText1, u"DecText1"_s, u"Сумма по счету"_s);
  return form;
}

QLayout* DocumentEditor::NewPrints() {
  auto* row = new WrapRow(look::kGrid, look::kTight);
  for (const PrintCommand& command : screens_.prints) {
    QPushButton* button = NewCommand(this, command.name, command.caption, look::IconName::kPrint);
    connect(button, &QPushButton::clicked, this, [this, &command] { Print(command); });
    row->addWidget(button);
  }
  return row;
}

QLayout* DocumentEditor::NewFoot() {
  auto* left = new QVBoxLayout;
  left->setSpacing(look::kGrid);
  if (BookOf(screens_.kind).has_flag) {
    Check1 = new QCheckBox(u"Счет &закрыт"_s, this);
    Check1->setObjectName(u"Check1"_s);
    Check1->setChecked(draft_.Head().IsClosed());
    // What has posted can't be taken back but by deleting the document.
    Check1->setEnabled(!draft_.WasClosed());
    QBoxLayout* flag = WithHint(Check1, HintFor(screens_.editor_name, u"Счет закрыт"));
    flag->addStretch();
    left->addLayout(flag);
  }
  left->addStretch();
  left->addLayout(NewPrints());

  ok_ = NewCommand(this, u"ok"_s, u"OK"_s);
  cancel_ = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  connect(ok_, &QPushButton::clicked, this, &DocumentEditor::Save);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);

  auto* foot = new QHBoxLayout;
  foot->setSpacing(look::kGap);
  foot->addLayout(left, 1);
  foot->addLayout(NewTotals());
  return foot;
}

void DocumentEditor::ShowSums() {
  Text2->setText(draft_.Head().sum);
  ShowNetSum();
}

void DocumentEditor::ShowNetSum() {
  if (DecText1 != nullptr) DecText1->setText(draft_.Head().net_sum);
}

void DocumentEditor::Add() {
  Guarded(this, [&] {
    screens_.pick(context_, draft_.Warehouse(), this,
                  [this](const GoodsPick& pick) { TakePick(pick); });
  });
  ListView1->setFocus();
}

void DocumentEditor::TakePick(const GoodsPick& pick) {
  if (!draft_.AddLine(pick)) return;
  ListView1->Records()->Reset();
  ListView1->SelectRow(static_cast<int>(draft_.Lines().size()) - 1);
  ShowSums();
}

void DocumentEditor::Change() {
  const int row = ListView1->CurrentRow();
  if (row < 0) return;
  class LineDialog dialog(draft_.Lines()[row], this);
  if (dialog.exec() == QDialog::Accepted) {
    draft_.ChangeLine(row, dialog.Quantity(), dialog.Price(), dialog.Amount());
    ListView1->Records()->Update(row);
    ShowSums();
  }
  ListView1->setFocus();
}

void DocumentEditor::Remove() {
  const int row = ListView1->CurrentRow();
  if (row < 0) return;
  if (AskYesNo(this, u"Вы уверены?"_s, u"Удаление"_s)) {
    ListView1->Records()->Remove(row, [&] { draft_.RemoveLine(row); });
    ListView1->SelectRow(std::min(row, static_cast<int>(draft_.Lines().size()) - 1));
    ShowSums();
  }
  ListView1->setFocus();
}

void DocumentEditor::TakeFields() {
  draft_.SetNumber(number_->text());
  draft_.SetDate(date_->date());
  if (Check1 == nullptr) return;  // the warehouses of a transfer are taken as they are chosen
  draft_.SetParty(party_->Chosen());
  draft_.SetClosed(Check1->isChecked());
}

void DocumentEditor::Print(const PrintCommand& command) {
  if (!FieldsAreSound(this)) return;
  TakeFields();
  Guarded(this, [&] { RunPrint(command, context_, draft_.ToPrint(), this); });
}

void DocumentEditor::Save() {
  using Outcome = DocumentDraft::Outcome;
  if (!FieldsAreSound(this)) return;
  TakeFields();
  Outcome outcome = Outcome::kNoLines;
  if (!Guarded(this, [&] { outcome = draft_.Save(); })) return;
  if (outcome == Outcome::kSaved) accept();
  if (outcome == Outcome::kSameWarehouse) ShowInformation(this, u"Выбирите разные склады"_s);
}

}  // namespace kladez
