#include "screens/stock/OnHandScreen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "books/directories/WarehouseDirectory.h"
#include "books/printing/OnHandPage.h"
#include "formats/Numbers.h"
#include "screens/directories/QuantityDialog.h"
#include "ui/Hints.h"
#include "ui/ScannerSearch.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Commands.h"
#include "ui/controls/FollowedFiles.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using look::IconName;

QString CellOf(const OnHandRow& row, int column) {
  const std::array cells = {&row.name, &row.quantity, &row.unit, &row.price};
  return *cells[column];
}

}  // namespace

OnHandScreen::OnHandScreen(AppContext& context, QWidget* parent)
    : QWidget(parent),
      context_(context),
      filter_(new GoodsFilter(context.settings, {settings::kStockGroups, settings::kStockGoodsOnly},
                              u"Sklad", this)),
      warehouse_(new QComboBox(this)),
      status_(new QLabel(this)),
      change_(NewCommand(this, u"Command1"_s, u"&Изменить"_s, IconName::kChange)),
      print_(NewCommand(this, u"Command2"_s, u"П&ечать"_s, IconName::kPrint)),
      zero_(NewCommand(this, u"Command3"_s, u"О&бнулить"_s, IconName::kRemove)),
      history_(NewHistoryCommand(this, context, [this] { return ForHistory(); })),
      close_(NewCommand(this, u"Command4"_s, u"&Закрыть"_s)) {
  setObjectName(u"Sklad"_s);
  setWindowTitle(u"Наличие товаров на складе"_s);
  warehouse_->setObjectName(u"Combo1"_s);
  warehouse_->addItems(context.session.warehouses);
  warehouse_->addItem(kAllWarehouses.toString());
  status_->setObjectName(u"StatusBar1"_s);
  status_->setTextFormat(Qt::PlainText);
  BuildList();
  BuildLayout();
  setFocusProxy(list_);
  ShareListKeys(this, list_, print_);
  SelectByScanner(this, context, list_);

  connect(warehouse_, &QComboBox::currentIndexChanged, this, &OnHandScreen::Fill);
  connect(filter_, &GoodsFilter::ViewChosen, this, &OnHandScreen::Fill);
  connect(change_, &QPushButton::clicked, this, &OnHandScreen::Change);
  connect(print_, &QPushButton::clicked, this, &OnHandScreen::Print);
  connect(zero_, &QPushButton::clicked, this, &OnHandScreen::Zero);
  connect(close_, &QPushButton::clicked, this, &QWidget::close);
  connect(list_, &RecordList::DoubleClicked, change_, &QPushButton::click);
  // Unlike a double click, Enter changes the shown row with all warehouses chosen too.
  connect(list_, &RecordList::EnterPressed, this, &OnHandScreen::Change);
  files_ = new FollowedFiles(
      this, {.is_current =
                 [this] {
                   return !loaded_ ||
                          IsCurrent(on_hand_, context_.data, context_.session, Warehouses());
                 },
             .is_changed = {},
             .read_again =
                 [this] {
                   Show(LoadOnHand(context_.data, context_.session, Warehouses(), filter_->View()));
                 }});
  Fill();
}

void OnHandScreen::BuildList() {
  const auto row = [this](int at) { return on_hand_.Rows()[at]; };
  const int cost_twips = context_.session.IsSeller() ? 0 : 1300;
  model_ = new RecordModel({{.title = u"Наименование"_s, .twips = 3100, .stretch = true},
                            {.title = u"Кол-во"_s, .twips = 1300, .number = true},
                            {.title = u"Ед.изм."_s, .twips = 1000},
                            {.title = u"Цена закупа"_s, .twips = cost_twips, .number = true}},
                           {.count = [this] { return static_cast<int>(on_hand_.Rows().size()); },
                            .text = [row](int at, int column) { return CellOf(row(at), column); },
                            .is_group = [row](int at) { return row(at).IsGroup(); },
                            .is_amiss = [row](int at) { return NumberOr(row(at).quantity) < 0; }},
                           this);
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(model_);
  list_->SetEmptyText(u"Список пуст. Внесите товары в справочник «Товары»."_s);
  filter_->SearchIn(list_, EmptySearch::kReturnsToList);
}

void OnHandScreen::BuildLayout() {
  auto* choice = new QHBoxLayout;
  AddChoice(choice, u"Ск&лад:"_s, warehouse_, HintFor(u"Sklad", u"Склад"));
  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addLayout(choice);
  layout->addWidget(filter_);
  layout->addWidget(list_, 1);
  layout->addLayout(NewCommandRow({change_, zero_, print_, history_}, {close_}));
  layout->addWidget(look::NewSeparator(this));
  layout->addWidget(status_);
}

bool OnHandScreen::AllChosen() const {
  return warehouse_->currentIndex() == warehouse_->count() - 1;
}

GoodsInWarehouse OnHandScreen::ForHistory() const {
  const int row = list_->CurrentRow();
  return {row < 0 ? QString() : on_hand_.Rows()[row].name, warehouse_->currentText()};
}

bool OnHandScreen::RefusedToSeller() {
  if (!context_.session.IsSeller()) return false;
  NotAllowed(this);
  return true;
}

void OnHandScreen::Fill() {
  change_->setEnabled(!AllChosen());
  zero_->setEnabled(!AllChosen());
  OnHandList filled;
  loaded_ = Guarded(this, [&] {
    filled = LoadOnHand(context_.data, context_.session, Warehouses(), filter_->View());
  });
  Show(std::move(filled));
}

QStringList OnHandScreen::Warehouses() const {
  return AllChosen() ? context_.session.warehouses : QStringList{warehouse_->currentText()};
}

void OnHandScreen::Show(OnHandList list) {
  const int selected = list_->CurrentRow();
  const QString name = selected < 0 ? QString() : on_hand_.Rows()[selected].name;
  on_hand_ = std::move(list);
  model_->Reset();
  list_->SelectRow(std::max(0, on_hand_.RowOfName(name)));
  status_->setText(on_hand_.StatusText());
}

void OnHandScreen::Change() {
  if (RefusedToSeller()) return;
  list_->setFocus();
  const int row = list_->CurrentRow();
  if (row < 0 || on_hand_.Rows()[row].IsGroup()) return;
  const auto answer = AskQuantity(this, u"Товар"_s, u"Кол-во:"_s, on_hand_.Rows()[row].quantity);
  if (!answer) return;
  OnHandList changed = on_hand_;
  if (!changed.ChangeQuantity(row, answer->quantity)) return;
  if (!AllChosen() && !files_->Save([&] {
        SaveOnHand(changed, context_.data, context_.session, warehouse_->currentText());
      })) {
    return;
  }
  on_hand_ = std::move(changed);
  model_->Update(row);
  // Over all warehouses the new quantity is in no ledger, and does not count.
  if (!AllChosen()) status_->setText(on_hand_.StatusText());
}

void OnHandScreen::Zero() {
  if (RefusedToSeller() || !loaded_) return;
  if (!AskYesNo(this, u"Вы уверены, что хотите удалить все остатки со склада"_s,
                kAttention.toString(), DefaultAnswer::kNo)) {
    return;
  }
  files_->Save([this] {
    ZeroOnHand(on_hand_, context_.data, context_.session, warehouse_->currentText());
    Fill();
  });
}

void OnHandScreen::Print() {
  Guarded(this, [this] {
    context_.print_outs.Show(u"naltov.htm"_s, OnHandPage(on_hand_, context_.clock.Today()));
  });
}

void OnHandScreen::closeEvent(QCloseEvent* event) {
  filter_->Remember();
  QWidget::closeEvent(event);
}

}  // namespace kladez
