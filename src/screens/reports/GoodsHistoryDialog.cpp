#include "screens/reports/GoodsHistoryDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "books/directories/WarehouseDirectory.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "screens/stock/documents/OpenDocument.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Commands.h"
#include "ui/controls/DateField.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/TabOrder.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

enum HistoryColumn {
  kDay,
  kDocument,
  kNumber,
  kWarehouse,
  kParty,
  kReceived,
  kShipped,
  kStock,
  kPrice
};

std::vector<Column> HistoryColumns(bool with_price) {
  return {{.title = u"Дата"_s, .twips = 950, .sample = u"00.00.0000"_s},
          {.title = u"Документ"_s, .twips = 1500, .sample = u"Приход, открыт"_s},
          {.title = u"N"_s, .twips = 700},
          {.title = u"Склад"_s, .twips = 1700},
          {.title = u"От кого, кому"_s, .twips = 2200, .stretch = true},
          {.title = u"Приход"_s, .twips = 950, .number = true},
          {.title = u"Расход"_s, .twips = 950, .number = true},
          {.title = u"Остаток"_s, .twips = 1000, .number = true},
          {.title = u"Цена"_s, .twips = with_price ? 950 : 0, .number = true}};
}

}  // namespace

GoodsHistoryDialog::GoodsHistoryDialog(AppContext& context, GoodsHistory history,
                                       const QString& warehouse, QWidget* parent)
    : QDialog(parent),
      context_(context),
      history_(std::move(history)),
      status_(new QLabel(this)),
      open_(NewCommand(this, u"open"_s, u"&Открыть"_s, look::IconName::kOpen)),
      close_(NewCommand(this, u"close"_s, u"&Закрыть"_s)) {
  setObjectName(u"history"_s);
  setWindowTitle(u"История товара «%1»"_s.arg(history_.Goods().left(look::kLongestText)));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  status_->setObjectName(u"status"_s);
  status_->setTextFormat(Qt::PlainText);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(NewChoices(warehouse));
  BuildList();
  layout->addWidget(list_, 1);
  layout->addWidget(status_);
  layout->addWidget(look::NewSeparator(this));
  auto* help = NewHelpCommand(this, context.data);
  layout->addLayout(NewCommandRow({open_}, {help, close_}));
  resize(look::ByLetters(this, 116, 64));
  TabByEye(this);
  ShareListKeys(this, list_);

  connect(warehouse_, &QComboBox::currentIndexChanged, this, &GoodsHistoryDialog::ShowRows);
  connect(day_, &DateField::dateChanged, this, &GoodsHistoryDialog::SelectDay);
  connect(list_, &RecordList::EnterPressed, this, &GoodsHistoryDialog::Open);
  connect(list_, &RecordList::DoubleClicked, this, &GoodsHistoryDialog::Open);
  connect(open_, &QPushButton::clicked, this, &GoodsHistoryDialog::Open);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  ShowRows();
  list_->setFocus();
}

QHBoxLayout* GoodsHistoryDialog::NewChoices(const QString& warehouse) {
  warehouse_ =
      new TextChoice(context_.session.warehouses + QStringList{kAllWarehouses.toString()}, this);
  warehouse_->setObjectName(u"Combo1"_s);
  warehouse_->Choose(warehouse.isEmpty() ? kAllWarehouses.toString() : warehouse);
  day_ = new DateField(context_.clock.Today(), context_.clock, this);
  day_->setObjectName(u"day"_s);
  stock_ = NewLabel({}, nullptr, this);
  stock_->setObjectName(u"stock"_s);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGrid);
  AddChoice(row, u"С&клад:"_s, warehouse_, HintFor(u"history", u"Склад"));
  row->addSpacing(look::kGrid);
  row->addWidget(NewLabel(u"Остаток &на:"_s, day_, this));
  row->addLayout(WithHint(day_, HintFor(u"history", u"Остаток на")));
  row->addWidget(stock_);
  return row;
}

void GoodsHistoryDialog::BuildList() {
  const auto below_zero = [this](int row) { return rows_[row].stock < 0; };
  model_ = new RecordModel(HistoryColumns(!context_.session.IsSeller()),
                           {.count = [this] { return static_cast<int>(rows_.size()); },
                            .text = [this](int row, int column) { return Cell(row, column); },
                            .is_amiss = below_zero},
                           this);
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(model_);
  list_->SetEmptyText(u"С этим товаром ещё ничего не происходило."_s);
}

QString GoodsHistoryDialog::Cell(int at, int column) const {
  const GoodsHistory::Row& row = rows_[at];
  if (column == kStock) return GeneralText(row.stock);
  if (column == kReceived) return row.quantity < 0 ? QString() : GeneralText(row.quantity);
  if (column == kShipped) return row.quantity < 0 ? GeneralText(-row.quantity) : QString();
  if (!row.movement) {
    return column == kParty ? u"Без документа: занесённые остатки, исправления"_s : QString();
  }
  const GoodsMovement& movement = *row.movement;
  switch (column) {
    case kDay:
      return DateText(movement.date);
    case kDocument:
      return DocumentName(movement.document.kind, movement.is_open);
    case kNumber:
      return movement.number;
    case kWarehouse:
      return movement.warehouse;
    case kParty:
      return movement.party;
    default:
      return movement.price;
  }
}

void GoodsHistoryDialog::ShowRows() {
  rows_ = history_.Rows(warehouse_->Chosen());
  model_->Reset();
  const GoodsHistory::Sums sums = history_.Total(warehouse_->Chosen());
  status_->setText(u"Приход: %1     Расход: %2     Остаток: %3 %4"_s.arg(
      GeneralText(sums.received), GeneralText(sums.shipped), GeneralText(sums.stock),
      history_.Unit()));
  SelectDay();
}

void GoodsHistoryDialog::ShowStock() {
  const double stock = history_.StockOn(day_->date(), warehouse_->Chosen());
  stock_->setText(GeneralText(stock) + u' ' + history_.Unit().left(look::kLongestText));
}

// The last row of the day, or of what went before it.
void GoodsHistoryDialog::SelectDay() {
  ShowStock();
  int last = rows_.empty() ? -1 : 0;
  for (int row = 0; row < static_cast<int>(rows_.size()); ++row) {
    if (rows_[row].movement && rows_[row].movement->date <= day_->date()) last = row;
  }
  list_->SelectRow(last);
}

void GoodsHistoryDialog::Open() {
  const int row = list_->CurrentRow();
  if (row < 0 || !rows_[row].movement) return;
  OpenDocument(context_, rows_[row].movement->document, this);
  list_->setFocus();
}

void ShowGoodsHistory(AppContext& context, const QString& goods, const QString& warehouse,
                      QWidget* parent) {
  Guarded(parent, [&] {
    GoodsHistory history(goods);
    {
      LongWork work(parent, u"Читаются документы..."_s);
      history = CollectGoodsHistory(context.data, context.session, goods, work.Told());
    }
    GoodsHistoryDialog(context, std::move(history), warehouse, parent).exec();
  });
}

}  // namespace kladez
