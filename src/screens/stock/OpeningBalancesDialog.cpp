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
#include "ui/controls/UnsavedWork.h"

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
      warehouse_(new QComboBox(this)),
      add_(NewCommand(this, u"Command1"_s, u"&Добавить"_s, IconName::kAdd)),
      change_(NewCommand(this, u"Command2"_s, u"&Изменить"_s, IconName::kChange)),
      remove_(NewCommand(this, u"Command3"_s, u"&Удалить"_s, IconName::kRemove)),
      ok_(NewCommand(this, u"Command4"_s, u"&OK"_s)),
      cancel_(NewCommand(this, u"Command5"_s, u"О&тмена"_s)) {
  setObjectName(u"ost"_s);
  setWindowTitle(u"Занесение остатков"_s);
  warehouse_->setObjectName(u"Combo1"_s);
  warehouse_->addItems(context.session.warehouses);
  warehouse_->setCurrentIndex(-1);
  warehouse_->setPlaceholderText(u"Выберите склад"_s);
  BuildList();
  BuildLayout();
  warehouse_->setFocus();

  ShareListKeys(this, list_);
  connect(add_, &QPushButton::clicked, this, &OpeningBalancesDialog::Add);
  connect(change_, &QPushButton::clicked, this, &OpeningBalancesDialog::Change);
  connect(remove_, &QPushButton::clicked, this, &OpeningBalancesDialog::Remove);
  connect(ok_, &QPushButton::clicked, this, &OpeningBalancesDialog::Book);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(list_, &RecordList::InsertPressed, this, &OpeningBalancesDialog::Add);
  connect(list_, &RecordList::DeletePressed, this, &OpeningBalancesDialog::Remove);
  connect(list_, &RecordList::EnterPressed, this, &OpeningBalancesDialog::Change);
  connect(list_, &RecordList::DoubleClicked, this, &OpeningBalancesDialog::Change);
  new UnsavedWork(this, {.is_changed = [this] { return !balances_.Rows().empty(); },
                         .save =
                             [this] {
                               if (!TryBook()) return false;
                               accept();
                               return true;
                             }});
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
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(model_);
  list_->SetEmptyText(
      u"Список пуст. Нажмите «Добавить» и выберите товары, которые лежат на складе."_s);
}

void OpeningBalancesDialog::BuildLayout() {
  auto* choice = new QHBoxLayout;
  AddChoice(choice, u"С&клад:"_s, warehouse_, HintFor(u"ost", u"Склад"));
  auto* commands = new QHBoxLayout;
  commands->setSpacing(look::kGrid);
  for (QPushButton* command : {add_, change_, remove_}) commands->addWidget(command);
  commands->addStretch();
  auto* ending = NewEndingRow(ok_, cancel_);
  ending->insertWidget(0, NewHelpCommand(this, context_.data));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(choice);
  layout->addWidget(list_, 1);
  layout->addLayout(commands);
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(ending);
  resize(look::ByLetters(this, 72, 56));
}

void OpeningBalancesDialog::Add() {
  Guarded(this, [this] {
    GoodsPicker picker(context_, PickFor::kOpeningStock, this);
    picker.exec();
    if (!picker.Pick()) return;
    const int row = static_cast<int>(balances_.Rows().size());
    model_->Insert(row, [&] { balances_.Add(*picker.Pick()); });
    list_->SelectRow(row);
  });
}

void OpeningBalancesDialog::Change() {
  list_->setFocus();
  const int row = list_->CurrentRow();
  if (row < 0 || balances_.IsGroup(row)) return;
  const auto answer = AskQuantity(this, u"Товар"_s, u"Кол-во:"_s, balances_.Rows()[row].quantity);
  if (answer && balances_.ChangeQuantity(row, answer->quantity)) model_->Update(row);
}

void OpeningBalancesDialog::Remove() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  model_->Remove(row, [&] { balances_.Remove(row); });
  list_->SelectRow(std::min(row, static_cast<int>(balances_.Rows().size()) - 1));
  list_->setFocus();
}

void OpeningBalancesDialog::Book() {
  if (TryBook()) accept();
}

bool OpeningBalancesDialog::TryBook() {
  if (balances_.Rows().empty()) return false;
  if (warehouse_->currentIndex() < 0) {
    ShowMessage(this, u"Выберите склад, на который заносятся остатки"_s);
    warehouse_->setFocus();
    return false;
  }
  return Guarded(
      this, [this] { balances_.Book(context_.data, context_.session, warehouse_->currentText()); });
}

}  // namespace kladez
