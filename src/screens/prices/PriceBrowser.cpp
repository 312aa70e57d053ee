#include "screens/prices/PriceBrowser.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "formats/Numbers.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/LoadTableDialog.h"
#include "screens/directories/QuantityDialog.h"
#include "screens/prices/PriceRows.h"
#include "screens/prices/SalePriceDialog.h"
#include "screens/printing/PricePrintScreen.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/HistoryCommand.h"
#include "ui/ScannerSearch.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Commands.h"
#include "ui/controls/FollowedFiles.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"
#include "ui/controls/WrapRow.h"

namespace kladez {

using namespace Qt::StringLiterals;
using look::IconName;

namespace {

QString ScreenName(PriceUse use) { return use == PriceUse::kEditor ? u"Price"_s : u"price2"_s; }

}  // namespace

// The commands of each use, in the order in which they stand.
struct PriceBrowser::Command {
  QString name;
  QString caption;
  std::optional<IconName> icon;
  void (PriceBrowser::*run)();
  Place place = Place::kLeft;
};

std::vector<PriceBrowser::Command> PriceBrowser::CommandsOf(PriceUse use) {
  using P = PriceBrowser;
  const Command copy = {u"Command7"_s, u"Копи&ровать"_s, IconName::kCopy, &P::Copy};
  const Command paste = {u"Command8"_s, u"&Вставить"_s, IconName::kPaste, &P::Paste};
  const Command pick = {u"Command6"_s, u"В&ыбрать"_s, IconName::kPick, &P::Pick, Place::kRight};
  const auto close = [](const QString& caption) {
    return Command{u"Command3"_s, caption, {}, &P::CloseAsked, Place::kRight};
  };
  if (use == PriceUse::kPicker) return {copy, paste, pick, close(u"&Отмена"_s)};
  return {{u"GoldButton1"_s, u"&Добавить"_s, IconName::kAdd, &P::Add},
          {u"GoldButton2"_s, u"&Удалить"_s, IconName::kRemove, &P::Remove},
          {u"Command2"_s, u"&Изменить"_s, IconName::kChange, &P::Change},
          copy,
          paste,
          {u"table"_s, u"Из табли&цы…"_s, IconName::kOpen, &P::Bring},
          {u"Command9"_s, u"П&ечать"_s, IconName::kPrint, &P::Print},
          {u"Command10"_s, u"О&бновить"_s, IconName::kRefresh, &P::Refresh, Place::kPanel},
          {u"Command5"_s, u"Со&хранить"_s, IconName::kSave, &P::SaveList, Place::kRight},
          pick,
          close(u"&Закрыть"_s)};
}

PriceBrowser::PriceBrowser(AppContext& context, PriceUse use, QWidget* parent)
    : QWidget(parent),
      context_(context),
      use_(use),
      session_(context.session),
      store_(context.data, session_) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  BuildPanel(layout);
  BuildList();
  layout->addWidget(list_, 1);
  if (use == PriceUse::kPicker) {
    taken_ = NewLabel({}, nullptr, this);
    taken_->setObjectName(u"taken"_s);
    taken_->setWordWrap(true);
    look::MakeQuiet(taken_);
    auto* foot = new QHBoxLayout;
    foot->addWidget(taken_, 1);
    foot->addWidget(new HintPicture(HintFor(u"price2", u"Выбрано строк"), {}, this));
    layout->addLayout(foot);
  }
  auto* commands = new WrapRow(look::kGrid, look::kTight);
  AddCommands(commands, Place::kLeft);
  commands->addWidget(NewHistoryCommand(this, context, [this] {
    return GoodsInWarehouse{SelectedName(), shown_.warehouse};
  }));
  commands->AddStretch();
  AddCommands(commands, Place::kRight);
  layout->addLayout(commands);
  // A document brings its own warehouse to the picker; the editor picks nothing.
  warehouse_->setEnabled(use == PriceUse::kEditor);
  pick_->setVisible(use == PriceUse::kPicker);
  setFocusProxy(list_);
  TabByEye(this);
  ShareListKeys(this, list_, findChild<QPushButton*>(u"Command9"_s));
  SelectByScanner(this, context, list_);
  FollowFiles();
  Wire();
}

void PriceBrowser::Wire() {
  connect(warehouse_, &QComboBox::currentIndexChanged, this, &PriceBrowser::ListLists);
  connect(price_list_, &QComboBox::currentIndexChanged, this, &PriceBrowser::ChooseList);
  connect(filter_, &GoodsFilter::ViewChosen, this, &PriceBrowser::SwitchView);
  connect(list_, &RecordList::EnterPressed, this, &PriceBrowser::ChangeOrPick);
  connect(list_, &RecordList::DoubleClicked, this, &PriceBrowser::ChangeOrPick);
  if (use_ == PriceUse::kPicker) {
    connect(list_, &RecordList::CurrentRowChanged, this, &PriceBrowser::ShowWhatIsTaken);
    connect(model_, &RecordModel::dataChanged, this, &PriceBrowser::ShowWhatIsTaken);
  } else {
    unsaved_ = new UnsavedWork(parentWidget(),
                               {.is_changed = [this] { return loaded_ && prices_.IsChanged(); },
                                .save = [this] { return Save(); }});
    connect(list_, &RecordList::InsertPressed, this, &PriceBrowser::Add);
    connect(list_, &RecordList::DeletePressed, this, &PriceBrowser::Remove);
  }
}

void PriceBrowser::BuildPanel(QVBoxLayout* layout) {
  const QString screen = ScreenName(use_);
  warehouse_ = new QComboBox(this);
  warehouse_->setObjectName(u"Combo1"_s);
  warehouse_->addItems(session_.warehouses);
  warehouse_->setCurrentIndex(-1);
  price_list_ = new QComboBox(this);
  price_list_->setObjectName(u"Combo2"_s);
  auto* choices = new Columns(look::kMargin);
  const auto add_choice = [&](const QString& caption, QComboBox* field, QStringView place) {
    auto* choice = new QHBoxLayout;
    AddChoice(choice, caption, field, HintFor(screen, place));
    choices->Add(choice);
  };
  add_choice(u"Ск&лад:"_s, warehouse_, u"Склад");
  add_choice(u"Пра&йс:"_s, price_list_, u"Прайс");
  auto* commands = new QHBoxLayout;
  commands->setSpacing(look::kTight);
  AddCommands(commands, Place::kPanel);
  commands->addWidget(NewHelpCommand(this, context_.data));
  choices->Add(commands, 0);
  filter_ = new GoodsFilter(context_.settings, {settings::kPriceGroups, settings::kPriceGoodsOnly},
                            screen, this);
  layout->addLayout(choices);
  layout->addWidget(filter_);
}

void PriceBrowser::BuildList() {
  model_ = NewPriceModel(prices_, !context_.session.IsSeller(), this);
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(model_);
  // The print-out can take the selected rows alone; a pick is always one row.
  if (use_ == PriceUse::kEditor) list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  filter_->SearchIn(list_);
}

void PriceBrowser::AddCommands(QLayout* row, Place place) {
  for (const Command& command : CommandsOf(use_)) {
    if (command.place != place) continue;
    QPushButton* button = command.icon
                              ? NewCommand(this, command.name, command.caption, *command.icon)
                              : NewCommand(this, command.name, command.caption);
    if (command.run == &PriceBrowser::Pick) pick_ = button;
    connect(button, &QPushButton::clicked, this, command.run);
    row->addWidget(button);
  }
}

bool PriceBrowser::RefusedToSeller() {
  if (!context_.session.IsSeller()) return false;
  NotAllowed(this);
  return true;
}

void PriceBrowser::ChooseWarehouse(const QString& warehouse) {
  warehouse_->setCurrentIndex(
      warehouse_->findText(warehouse, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

// Asked before other rows come in the place of those that were changed.
bool PriceBrowser::MayReplace() { return unsaved_ == nullptr || unsaved_->MayGo(); }

void PriceBrowser::ChooseList() {
  if (MayReplace()) {
    Load();
  } else {
    const QSignalBlocker blocker(price_list_);
    price_list_->setCurrentIndex(shown_.list);
  }
}

void PriceBrowser::Refresh() {
  if (MayReplace()) Load();
}

void PriceBrowser::ListLists() {
  if (!MayReplace()) {
    const QSignalBlocker blocker(warehouse_);
    warehouse_->setCurrentIndex(shown_.warehouse_row);
    return;
  }
  {
    const QSignalBlocker blocker(price_list_);
    price_list_->clear();
    price_list_->addItems(store_.Names(warehouse_->currentText()));
  }
  Load();
}

void PriceBrowser::ChooseListNamed(const QString& name) {
  const int row = price_list_->findText(name, Qt::MatchFixedString | Qt::MatchCaseSensitive);
  if (row >= 0) price_list_->setCurrentIndex(row);
}

QString PriceBrowser::SelectedName() const {
  const int row = list_->CurrentRow();
  return row < 0 ? QString() : prices_.Rows()[row].name;
}

void PriceBrowser::ShowRows(const QString& selected_name) {
  model_->Reset();
  const int same = prices_.RowOfName(selected_name);
  const bool picks = use_ == PriceUse::kPicker;
  const int first =
      picks ? FirstRowToPick(prices_, context_.settings.Read(settings::kLastPick)) : 0;
  list_->SelectRow(same < 0 ? first : same);
  if (use_ == PriceUse::kPicker) ShowWhatIsTaken();
  list_->SetEmptyText(
      price_list_->currentIndex() < 0
          ? u"У этого склада нет прайс-листов: нет файла price.usd с их названиями."_s
          : u"Список пуст. Внесите товары в справочник и нажмите «Обновить»."_s);
}

void PriceBrowser::Load() {
  PriceList list;
  loaded_ = false;
  shown_ = {warehouse_->currentText(), warehouse_->currentIndex(), price_list_->currentIndex()};
  if (warehouse_->currentIndex() >= 0 && price_list_->currentIndex() >= 0) {
    context_.show_progress.Tell(0);
    loaded_ = Guarded(this, [&] { list = ReadList(); });
    context_.show_progress.Tell(1);
  }
  TakeList(std::move(list));
}

PriceList PriceBrowser::ReadList() {
  return store_.Load(shown_.warehouse, shown_.list, filter_->View(), context_.show_progress);
}

void PriceBrowser::TakeList(PriceList list) {
  const QString selected = SelectedName();
  prices_ = std::move(list);
  marked_ = prices_.MarkedBytes();
  ShowRows(selected);
}

void PriceBrowser::FollowFiles() {
  files_ = new FollowedFiles(
      this,
      {.is_current =
           [this] { return !loaded_ || store_.IsCurrent(prices_, shown_.warehouse, shown_.list); },
       .is_changed = [this] { return prices_.IsChanged() || prices_.MarkedBytes() != marked_; },
       .read_again = [this] { TakeList(ReadList()); }});
}

void PriceBrowser::SwitchView(GoodsView view) {
  if (!MayReplace() || (loaded_ && !files_->Save([this] { store_.SaveTicks(prices_); }))) {
    filter_->SetView(view == GoodsView::kGroups ? GoodsView::kGoodsOnly : GoodsView::kGroups);
    return;
  }
  Load();
}

void PriceBrowser::Leave() {
  // Destroyed with this screen it would not keep its view.
  if (goods_) goods_->close();
  if (loaded_) Guarded(this, [this] { store_.SaveTicks(prices_); });
  filter_->Remember();
}

void PriceBrowser::Add() {
  if (!goods_) {
    Guarded(this, [this] {
      goods_ = new GoodsDirectoryScreen(context_, PickFor::kPriceList, this);
      connect(goods_, &GoodsDirectoryScreen::Picked, this, &PriceBrowser::InsertPicked);
    });
  }
  if (!goods_) return;
  goods_->show();
  goods_->raise();
  goods_->activateWindow();
}

void PriceBrowser::InsertPicked(const GoodsPick& pick) {
  const int below = list_->CurrentRow();
  const int count = static_cast<int>(prices_.Rows().size());
  const int at = below < 0 ? count : below + 1;
  model_->Insert(at, [&] { prices_.InsertPick(below, pick); });
  list_->SelectRow(at);
}

void PriceBrowser::Remove() {
  std::vector<int> rows = list_->SelectedRows();
  if (rows.empty()) return;
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    model_->Remove(*row, [&] { prices_.Remove(*row); });
  }
  list_->SelectRow(std::min(rows.front(), static_cast<int>(prices_.Rows().size()) - 1));
  list_->setFocus();
}

void PriceBrowser::Change() {
  if (RefusedToSeller()) return;
  const int row = list_->CurrentRow();
  list_->setFocus();
  if (row < 0 || prices_.Rows()[row].IsGroup()) return;
  SalePriceDialog dialog(prices_.Rows()[row], this);
  if (dialog.exec() != QDialog::Accepted) return;
  PriceList changed = prices_;
  changed.SetSalePrice(row, dialog.Price());
  if (!files_->Save([&] { store_.Save(changed, shown_.warehouse, shown_.list); })) {
    return;
  }
  changed.TakeAsSaved();
  prices_ = std::move(changed);
  model_->Update(row);
}

void PriceBrowser::ChangeOrPick() {
  if (use_ == PriceUse::kPicker) {
    Pick();
  } else {
    Change();
  }
}

void PriceBrowser::Pick() {
  const int at = list_->CurrentRow();
  if (at < 0 || prices_.Rows()[at].sale.isEmpty()) return;
  const PriceRow row = prices_.Rows()[at];
  const QuantityNotes notes = {
      .goods = row.name,
      .unit = row.unit,
      .on_hand = on_hand_ ? on_hand_(row.name) : std::nullopt,
      .flow = Flow::kOut,
      .cost = row.purchase,
      .cost_is = context_.session.IsSeller() ? CostIs::kSecret : CostIs::kShown};
  const auto answer = AskQuantity(this, u"Товар"_s, u"Кол-во:"_s, u"1"_s, MoneyText(row.sale),
                                  u"Цена реализации:"_s, notes);
  if (!answer || !ParseStrict(answer->quantity)) return;
  context_.settings.Write(settings::kLastPick, row.name);
  emit Picked({.name = row.name,
               .quantity = answer->quantity,
               .unit = row.unit,
               .cost = row.purchase,
               .price = answer->price});
  ++picks_;
  ShowWhatIsTaken();
}

void PriceBrowser::ShowWhatIsTaken() {
  taken_->setText(WhatIsTaken(prices_, list_->CurrentRow(), picks_));
}

void PriceBrowser::Copy() {
  if (RefusedToSeller() || !loaded_) return;
  Guarded(this, [this] { store_.Copy(prices_); });
}

void PriceBrowser::Paste() {
  if (RefusedToSeller() || !loaded_) return;
  files_->Save([this] {
    const QString selected = SelectedName();
    if (store_.Paste(prices_, warehouse_->currentText(), price_list_->currentIndex()))
      ShowRows(selected);
  });
}

void PriceBrowser::Bring() {
  if (MayReplace() && LoadTable(context_, this, shown_.warehouse, shown_.list)) Load();
}

void PriceBrowser::Print() {
  PricePrintScreen(context_, {shown_.warehouse, {prices_.Rows().Records(), list_->SelectedRows()}},
                   this)
      .exec();
}

void PriceBrowser::SaveList() { Save(); }

bool PriceBrowser::Save() {
  const bool saved =
      loaded_ && files_->Save([this] { store_.Save(prices_, shown_.warehouse, shown_.list); });
  if (saved) prices_.TakeAsSaved();
  return saved;
}

}  // namespace kladez
