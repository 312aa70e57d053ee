#include "screens/prices/PriceBrowser.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "formats/Numbers.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/QuantityDialog.h"
#include "screens/prices/SalePriceDialog.h"
#include "screens/printing/PricePrintScreen.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/WrapRow.h"

namespace kladez {

using namespace Qt::StringLiterals;
using look::IconName;

namespace {

QString ScreenName(PriceUse kind) { return kind == PriceUse::kEditor ? u"Price"_s : u"price2"_s; }

const QString& CellOf(const PriceRow& row, int column) {
  const std::array cells = {&row.name, &row.unit, &row.purchase, &row.sale};
  return *cells[column];
}

}  // namespace

// The commands of each kind of screen, in the order in which they stand.
struct PriceBrowser::Command {
  QPushButton* PriceBrowser::*button;
  QString name;
  QString caption;
  std::optional<IconName> icon;
  void (PriceBrowser::*run)();
  Place place = Place::kLeft;
};

std::vector<PriceBrowser::Command> PriceBrowser::CommandsOf(PriceUse kind) {
  using P = PriceBrowser;
  const Command copy = {&P::Command7, u"Command7"_s, u"Копи&ровать"_s, IconName::kCopy, &P::Copy};
  const Command paste = {&P::Command8, u"Command8"_s, u"&Вставить"_s, IconName::kPaste, &P::Paste};
  const Command pick = {&P::Command6,    u"Command6"_s, u"В&ыбрать"_s,
                        IconName::kPick, &P::Pick,      Place::kRight};
  const auto close = [](const QString& caption) {
    return Command{&P::Command3, u"Command3"_s, caption, {}, &P::CloseAsked, Place::kRight};
  };
  if (kind == PriceUse::kPicker) return {copy, paste, pick, close(u"&Отмена"_s)};
  return {
      {&P::GoldButton1, u"GoldButton1"_s, u"&Добавить"_s, IconName::kAdd, &P::Add},
      {&P::GoldButton2, u"GoldButton2"_s, u"&Удалить"_s, IconName::kRemove, &P::Remove},
      {&P::Command2, u"Command2"_s, u"&Изменить"_s, IconName::kChange, &P::Change},
      copy,
      paste,
      {&P::Command9, u"Command9"_s, u"П&ечать"_s, IconName::kPrint, &P::Print},
      {&P::Command10, u"Command10"_s, u"О&бновить"_s, IconName::kRefresh, &P::Load, Place::kPanel},
      {&P::Command5, u"Command5"_s, u"Со&хранить"_s, IconName::kSave, &P::Save, Place::kRight},
      pick,
      close(u"&Закрыть"_s)};
}

PriceBrowser::PriceBrowser(AppContext& context, PriceUse kind, QWidget* parent)
    : QWidget(parent),
      context_(context),
      kind_(kind),
      session_(context.session),
      store_(context.data, session_) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  BuildPanel(layout);
  BuildList();
  layout->addWidget(ListView1, 1);
  auto* commands = new WrapRow(look::kGrid, look::kTight);
  AddCommands(commands, Place::kLeft);
  commands->AddStretch();
  AddCommands(commands, Place::kRight);
  layout->addLayout(commands);
  // A document brings its own warehouse to the picker; the editor picks nothing.
  Combo1->setEnabled(kind == PriceUse::kEditor);
  Command6->setVisible(kind == PriceUse::kPicker);
  setFocusProxy(ListView1);
  ShareListKeys(this, ListView1, Command9);

  connect(Combo1, &QComboBox::currentIndexChanged, this, &PriceBrowser::ListLists);
  connect(Combo2, &QComboBox::currentIndexChanged, this, &PriceBrowser::Load);
  connect(filter_, &GoodsFilter::ViewChosen, this, &PriceBrowser::SwitchView);
  connect(ListView1, &RecordList::EnterPressed, this, &PriceBrowser::ChangeOrPick);
  connect(ListView1, &RecordList::DoubleClicked, this, &PriceBrowser::ChangeOrPick);
  if (kind == PriceUse::kEditor) {
    connect(ListView1, &RecordList::InsertPressed, this, &PriceBrowser::Add);
    connect(ListView1, &RecordList::DeletePressed, this, &PriceBrowser::Remove);
  }
}

void PriceBrowser::BuildPanel(QVBoxLayout* layout) {
  const QString screen = ScreenName(kind_);
  Combo1 = new QComboBox(this);
  Combo1->setObjectName(u"Combo1"_s);
  Combo1->addItems(session_.warehouses);
  Combo1->setCurrentIndex(-1);
  Combo2 = new QComboBox(this);
  Combo2->setObjectName(u"Combo2"_s);
  auto* choices = new Columns(look::kMargin);
  const auto add_choice = [&](const QString& caption, QComboBox* field, QStringView place) {
    auto* choice = new QHBoxLayout;
    AddChoice(choice, caption, field, HintFor(screen, place));
    choices->Add(choice);
  };
  add_choice(u"Ск&лад:"_s, Combo1, u"Склад");
  add_choice(u"Пра&йс:"_s, Combo2, u"Прайс");
  auto* commands = new QHBoxLayout;
  commands->setSpacing(look::kTight);
  AddCommands(commands, Place::kPanel);
  commands->addWidget(NewHelpCommand(this, context_.data, u"price.htm"));
  choices->Add(commands, 0);
  filter_ = new GoodsFilter(context_.settings, {settings::kPriceGroups, settings::kPriceGoodsOnly},
                            screen, this);
  layout->addLayout(choices);
  layout->addWidget(filter_);
}

void PriceBrowser::BuildList() {
  const auto row = [this](int at) -> const PriceRow& { return list_.Rows()[at]; };
  const int cost_twips = context_.session.IsSeller() ? 0 : 1500;
  model_ =
      new RecordModel({{.title = u"Наименование"_s, .twips = 3100, .stretch = true},
                       {.title = u"Ед.изм."_s, .twips = 1000},
                       {.title = u"Цена закупа"_s, .twips = cost_twips, .number = true},
                       {.title = u"Цена реализации"_s, .twips = 2000, .number = true}},
                      {.count = [this] { return static_cast<int>(list_.Rows().size()); },
                       .text = [row](int at, int column) { return CellOf(row(at), column); },
                       .is_group = [row](int at) { return row(at).IsGroup() || row(at).picked; },
                       .checked = [row](int at) { return row(at).ticked; },
                       .set_checked = [this](int at, bool on) { list_.SetTick(at, on); },
                       .checkable = [row](int at) { return !row(at).IsGroup(); }},
                      this);
  ListView1 = new RecordList(this);
  ListView1->setObjectName(u"ListView1"_s);
  ListView1->SetRecords(model_);
  // The print-out can take the selected rows alone.
  ListView1->setSelectionMode(QAbstractItemView::ExtendedSelection);
  filter_->SearchIn(ListView1);
}

void PriceBrowser::AddCommands(QLayout* row, Place place) {
  for (const Command& command : CommandsOf(kind_)) {
    if (command.place != place) continue;
    QPushButton* button = command.icon
                              ? NewCommand(this, command.name, command.caption, *command.icon)
                              : NewCommand(this, command.name, command.caption);
    this->*command.button = button;
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
  Combo1->setCurrentIndex(Combo1->findText(warehouse, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void PriceBrowser::ListLists() {
  {
    const QSignalBlocker blocker(Combo2);
    Combo2->clear();
    Combo2->addItems(store_.Names(Combo1->currentText()));
  }
  Load();
}

QString PriceBrowser::SelectedName() const {
  const int row = ListView1->CurrentRow();
  return row < 0 ? QString() : list_.Rows()[row].name;
}

void PriceBrowser::ShowRows(const QString& selected_name) {
  model_->Reset();
  const auto& rows = list_.Rows();
  const auto same = std::find_if(rows.begin(), rows.end(),
                                 [&](const PriceRow& row) { return row.name == selected_name; });
  ListView1->SelectRow(same == rows.end() ? 0 : static_cast<int>(same - rows.begin()));
  ListView1->SetEmptyText(
      Combo2->currentIndex() < 0
          ? u"У этого склада нет прайс-листов: нет файла price.usd с их названиями."_s
          : u"Список пуст. Внесите товары в справочник и нажмите «Обновить»."_s);
}

void PriceBrowser::Load() {
  const QString selected = SelectedName();
  PriceList list;
  loaded_ = false;
  if (Combo1->currentIndex() >= 0 && Combo2->currentIndex() >= 0) {
    context_.show_progress.Tell(0);
    loaded_ = Guarded(this, [&] {
      list = store_.Load(Combo1->currentText(), Combo2->currentIndex(), filter_->View(),
                         context_.show_progress);
    });
    context_.show_progress.Tell(1);
  }
  list_ = std::move(list);
  ShowRows(selected);
}

void PriceBrowser::SwitchView(GoodsView view) {
  if (loaded_ && !Guarded(this, [this] { store_.SaveTicks(list_); })) {
    filter_->SetView(view == GoodsView::kGroups ? GoodsView::kGoodsOnly : GoodsView::kGroups);
    return;
  }
  Load();
}

void PriceBrowser::Leave() {
  // Destroyed with this screen it would not keep its view.
  if (goods_) goods_->close();
  if (loaded_) Guarded(this, [this] { store_.SaveTicks(list_); });
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
  const int below = ListView1->CurrentRow();
  const int count = static_cast<int>(list_.Rows().size());
  const int at = below < 0 ? count : below + 1;
  model_->Insert(at, [&] { list_.InsertPick(below, pick); });
  ListView1->SelectRow(at);
}

void PriceBrowser::Remove() {
  std::vector<int> rows = ListView1->SelectedRows();
  if (rows.empty()) return;
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    model_->Remove(*row, [&] { list_.Remove(*row); });
  }
  ListView1->SelectRow(std::min(rows.front(), static_cast<int>(list_.Rows().size()) - 1));
  ListView1->setFocus();
}

void PriceBrowser::Change() {
  if (RefusedToSeller()) return;
  const int row = ListView1->CurrentRow();
  ListView1->setFocus();
  if (row < 0 || list_.Rows()[row].IsGroup()) return;
  SalePriceDialog dialog(list_.Rows()[row].name, list_.Rows()[row].sale, this);
  if (dialog.exec() != QDialog::Accepted) return;
  PriceList changed = list_;
  changed.SetSalePrice(row, dialog.Price());
  if (!Guarded(this,
               [&] { store_.Save(changed, Combo1->currentText(), Combo2->currentIndex()); })) {
    return;
  }
  list_ = std::move(changed);
  model_->Update(row);
}

void PriceBrowser::ChangeOrPick() {
  if (kind_ == PriceUse::kPicker) {
    Pick();
  } else {
    Change();
  }
}

void PriceBrowser::Pick() {
  const int at = ListView1->CurrentRow();
  if (at < 0 || list_.Rows()[at].sale.isEmpty()) return;
  const PriceRow& row = list_.Rows()[at];
  const auto answer = AskQuantity(this, u"Товар"_s, u"Кол-во:"_s, u"1"_s, MoneyText(row.sale));
  if (!answer || !ParseStrict(answer->quantity)) return;
  emit Picked({.name = row.name,
               .quantity = answer->quantity,
               .unit = row.unit,
               .cost = row.purchase,
               .price = answer->price});
}

void PriceBrowser::Copy() {
  if (RefusedToSeller() || !loaded_) return;
  Guarded(this, [this] { store_.Copy(list_); });
}

void PriceBrowser::Paste() {
  if (RefusedToSeller() || !loaded_) return;
  Guarded(this, [this] {
    const QString selected = SelectedName();
    if (store_.Paste(list_, Combo1->currentText(), Combo2->currentIndex())) ShowRows(selected);
  });
}

void PriceBrowser::Print() {
  PricePrintScreen screen(context_,
                          {Combo1->currentText(), {list_.Rows(), ListView1->SelectedRows()}}, this);
  screen.exec();
}

void PriceBrowser::Save() {
  if (!loaded_) return;
  Guarded(this, [this] { store_.Save(list_, Combo1->currentText(), Combo2->currentIndex()); });
}

}  // namespace kladez
