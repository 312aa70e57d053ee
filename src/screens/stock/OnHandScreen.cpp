#include "screens/stock/OnHandScreen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "books/directories/WarehouseDirectory.h"
#include "books/printing/OnHandPage.h"
#include "screens/directories/QuantityDialog.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using look::IconName;

const QString& CellOf(const OnHandRow& row, int column) {
  const std::array cells = {&row.name, &row.quantity, &row.unit, &row.price};
  return *cells[column];
}

}  // namespace

OnHandScreen::OnHandScreen(AppContext& context, QWidget* parent)
    : QWidget(parent),
      context_(context),
      filter_(new GoodsFilter(context.settings, {settings::kStockGroups, settings::kStockGoodsOnly},
                              u"Sklad", this)),
      Combo1(new QComboBox(this)),
      StatusBar1(new QLabel(this)),
      Command1(NewCommand(this, u"Command1"_s, u"&Изменить"_s, IconName::kChange)),
      Command2(NewCommand(this, u"Command2"_s, u"П&ечать"_s, IconName::kPrint)),
      Command3(NewCommand(this, u"Command3"_s, u"О&бнулить"_s, IconName::kRemove)),
      Command4(NewCommand(this, u"Command4"_s, u"&Закрыть"_s)) {
  setObjectName(u"Sklad"_s);
  setWindowTitle(u"Наличие товаров на складе"_s);
  Combo1->setObjectName(u"Combo1"_s);
  Combo1->addItems(context.session.warehouses);
  Combo1->addItem(kAllWarehouses.toString());
  StatusBar1->setObjectName(u"StatusBar1"_s);
  StatusBar1->setTextFormat(Qt::PlainText);
  BuildList();
  BuildLayout();
  setFocusProxy(ListView1);
  ShareListKeys(this, ListView1, Command2);

  connect(Combo1, &QComboBox::currentIndexChanged, this, &OnHandScreen::Fill);
  connect(filter_, &GoodsFilter::ViewChosen, this, &OnHandScreen::Fill);
  connect(Command1, &QPushButton::clicked, this, &OnHandScreen::Change);
  connect(Command2, &QPushButton::clicked, this, &OnHandScreen::Print);
  connect(Command3, &QPushButton::clicked, this, &OnHandScreen::Zero);
  connect(Command4, &QPushButton::clicked, this, &QWidget::close);
  connect(ListView1, &RecordList::DoubleClicked, Command1, &QPushButton::click);
  // Unlike a double click, Enter changes the shown row with all warehouses chosen too.
  connect(ListView1, &RecordList::EnterPressed, this, &OnHandScreen::Change);
  Fill();
}

void OnHandScreen::BuildList() {
  const auto row = [this](int at) -> const OnHandRow& { return on_hand_.Rows()[at]; };
  const int cost_twips = context_.session.IsSeller() ? 0 : 1300;
  model_ = new RecordModel({{.title = u"Наименование"_s, .twips = 3100, .stretch = true},
                            {.title = u"Кол-во"_s, .twips = 1300, .number = true},
                            {.title = u"Ед.изм."_s, .twips = 1000},
                            {.title = u"Цена закупа"_s, .twips = cost_twips, .number = true}},
                           {.count = [this] { return static_cast<int>(on_hand_.Rows().size()); },
                            .text = [row](int at, int column) { return CellOf(row(at), column); },
                            .is_group = [row](int at) { return row(at).IsGroup(); }},
                           this);
  ListView1 = new RecordList(this);
  ListView1->setObjectName(u"ListView1"_s);
  ListView1->SetRecords(model_);
  ListView1->SetEmptyText(u"Список пуст. Внесите товары в справочник «Товары»."_s);
  filter_->SearchIn(ListView1, EmptySearch::kReturnsToList);
}

void OnHandScreen::BuildLayout() {
  auto* choice = new QHBoxLayout;
  AddChoice(choice, u"Ск&лад:"_s, Combo1, HintFor(u"Sklad", u"Склад"));
  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addLayout(choice);
  layout->addWidget(filter_);
  layout->addWidget(ListView1, 1);
  layout->addLayout(NewCommandRow({Command1, Command3, Command2}, {Command4}));
  layout->addWidget(look::NewSeparator(this));
  layout->addWidget(StatusBar1);
}

bool OnHandScreen::AllChosen() const { return Combo1->currentIndex() == Combo1->count() - 1; }

bool OnHandScreen::RefusedToSeller() {
  if (!context_.session.IsSeller()) return false;
  NotAllowed(this);
  return true;
}

void OnHandScreen::Fill() {
  Command1->setEnabled(!AllChosen());
  Command3->setEnabled(!AllChosen());
  const int selected = ListView1->CurrentRow();
  const QString name = selected < 0 ? QString() : on_hand_.Rows()[selected].name;
  const QStringList warehouses =
      AllChosen() ? context_.session.warehouses : QStringList{Combo1->currentText()};
  OnHandList filled;
  loaded_ = Guarded(this, [&] {
    filled = LoadOnHand(context_.data, context_.session, warehouses, filter_->View());
  });
  on_hand_ = std::move(filled);
  model_->Reset();
  const auto& rows = on_hand_.Rows();
  const auto same = std::find_if(rows.begin(), rows.end(),
                                 [&](const OnHandRow& row) { return row.name == name; });
  ListView1->SelectRow(same == rows.end() ? 0 : static_cast<int>(same - rows.begin()));
  StatusBar1->setText(on_hand_.StatusText());
}

void OnHandScreen::Change() {
  if (RefusedToSeller()) return;
  ListView1->setFocus();
  const int row = ListView1->CurrentRow();
  if (row < 0 || on_hand_.Rows()[row].IsGroup()) return;
  const auto answer = AskQuantity(this, u"Товар"_s, u"Кол-во:"_s, on_hand_.Rows()[row].quantity);
  if (!answer) return;
  OnHandList changed = on_hand_;
  if (!changed.ChangeQuantity(row, answer->quantity)) return;
  if (!AllChosen() && !Guarded(this, [&] {
        SaveOnHand(changed, context_.data, context_.session, Combo1->currentText());
      })) {
    return;
  }
  on_hand_ = std::move(changed);
  model_->Update(row);
  // Over all warehouses the new quantity is in no ledger, and does not count.
  if (!AllChosen()) StatusBar1->setText(on_hand_.StatusText());
}

void OnHandScreen::Zero() {
  if (RefusedToSeller() || !loaded_) return;
  if (!AskYesNo(this, u"Вы уверены, что хотите удалить все остатки со склада"_s,
                kAttention.toString(), DefaultAnswer::kNo)) {
    return;
  }
  Guarded(this, [this] {
    ZeroOnHand(on_hand_, context_.data, context_.session, Combo1->currentText());
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
