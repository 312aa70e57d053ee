#include "screens/stock/OpeningBalancesDialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/directories/GoodsPicker.h"
#include "screens/directories/QuantityDialog.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using look::IconName;

const QString& CellOf(const LedgerRecord& row, int column) {
  const std::array cells = {&row.name, &row.quantity, &row.unit};
  return *cells[column];
}

}  // namespace

OpeningBalancesDialog::OpeningBalancesDialog(AppContext& context, QWidget* parent)
    : QDialog(parent),
      context_(context),
      Combo1(new QComboBox(this)),
      Command1(NewCommand(this, u"Command1"_s, u"&Добавить"_s, IconName::kAdd)),
      Command2(NewCommand(this, u"Command2"_s, u"&Изменить"_s, IconName::kChange)),
      Command3(NewCommand(this, u"Command3"_s, u"&Удалить"_s, IconName::kRemove)),
      Command4(NewCommand(this, u"Command4"_s, u"&OK"_s)),
      Command5(NewCommand(this, u"Command5"_s, u"О&тмена"_s)) {
  setObjectName(u"ost"_s);
  setWindowTitle(u"Занесение остатков"_s);
  Combo1->setObjectName(u"Combo1"_s);
  Combo1->addItems(context.session.warehouses);
  Combo1->setCurrentIndex(-1);
  Combo1->setPlaceholderText(u"Выберите склад"_s);
  BuildList();
  BuildLayout();
  Combo1->setFocus();

  ShareListKeys(this, ListView1);
  connect(Command1, &QPushButton::clicked, this, &OpeningBalancesDialog::Add);
  connect(Command2, &QPushButton::clicked, this, &OpeningBalancesDialog::Change);
  connect(Command3, &QPushButton::clicked, this, &OpeningBalancesDialog::Remove);
  connect(Command4, &QPushButton::clicked, this, &OpeningBalancesDialog::Book);
  connect(Command5, &QPushButton::clicked, this, &QDialog::reject);
  connect(ListView1, &RecordList::InsertPressed, this, &OpeningBalancesDialog::Add);
  connect(ListView1, &RecordList::DeletePressed, this, &OpeningBalancesDialog::Remove);
  connect(ListView1, &RecordList::EnterPressed, this, &OpeningBalancesDialog::Change);
  connect(ListView1, &RecordList::DoubleClicked, this, &OpeningBalancesDialog::Change);
}

void OpeningBalancesDialog::BuildList() {
  model_ = new RecordModel(
      {{.title = u"Наименование"_s, .twips = 3100, .stretch = true},
       {.title = u"Кол-во"_s, .twips = 1300, .number = true},
       {.title = u"Ед.изм."_s, .twips = 1000}},
      {.count = [this] { return static_cast<int>(balances_.Rows().size()); },
       .text = [this](int row, int column) { return CellOf(balances_.Rows()[row], column); },
       .is_group = [this](int row) { return balances_.IsGroup(row); }},
      this);
  ListView1 = new RecordList(this);
  ListView1->setObjectName(u"ListView1"_s);
  ListView1->SetRecords(model_);
  ListView1->SetEmptyText(
      u"Список пуст. Нажмите «Добавить» и выберите товары, которые лежат на складе."_s);
}

void OpeningBalancesDialog::BuildLayout() {
  auto* choice = new QHBoxLayout;
  AddChoice(choice, u"С&клад:"_s, Combo1, HintFor(u"ost", u"Склад"));
  auto* commands = new QHBoxLayout;
  commands->setSpacing(look::kGrid);
  for (QPushButton* command : {Command1, Command2, Command3}) commands->addWidget(command);
  commands->addStretch();
  auto* ending = NewEndingRow(Command4, Command5);
  ending->insertWidget(0, NewHelpCommand(this, context_.data, u"ost.htm"));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(choice);
  layout->addWidget(ListView1, 1);
  layout->addLayout(commands);
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(ending);
  resize(72 * look::kGrid, 56 * look::kGrid);
}

void OpeningBalancesDialog::Add() {
  Guarded(this, [this] {
    GoodsPicker picker(context_, PickFor::kOpeningStock, this);
    picker.exec();
    if (!picker.Pick()) return;
    const int row = static_cast<int>(balances_.Rows().size());
    model_->Insert(row, [&] { balances_.Add(*picker.Pick()); });
    ListView1->SelectRow(row);
  });
}

void OpeningBalancesDialog::Change() {
  ListView1->setFocus();
  const int row = ListView1->CurrentRow();
  if (row < 0 || balances_.IsGroup(row)) return;
  const auto answer = AskQuantity(this, u"Товар"_s, u"Кол-во:"_s, balances_.Rows()[row].quantity);
  if (answer && balances_.ChangeQuantity(row, answer->quantity)) model_->Update(row);
}

void OpeningBalancesDialog::Remove() {
  const int row = ListView1->CurrentRow();
  if (row < 0) return;
  model_->Remove(row, [&] { balances_.Remove(row); });
  ListView1->SelectRow(std::min(row, static_cast<int>(balances_.Rows().size()) - 1));
  ListView1->setFocus();
}

void OpeningBalancesDialog::Book() {
  if (balances_.Rows().empty()) return;
  if (Combo1->currentIndex() < 0) {
    ShowMessage(this, u"Выберите склад, на который заносятся остатки"_s);
    Combo1->setFocus();
    return;
  }
  if (Guarded(this,
              [this] { balances_.Book(context_.data, context_.session, Combo1->currentText()); })) {
    accept();
  }
}

}  // namespace kladez
