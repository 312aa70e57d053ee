#include "screens/stock/documents/DocumentLines.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

#include "books/directories/GoodsExtras.h"
#include "books/prices/ScannedGoods.h"
#include "books/prices/TodaysPrices.h"
#include "screens/stock/LineDialog.h"
#include "ui/Hints.h"
#include "ui/ScannerSearch.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/RecordList.h"

namespace kladez {

using namespace Qt::StringLiterals;

DocumentLines::DocumentLines(AppContext& context, DocumentDraft& draft, QWidget* parent)
    : QWidget(parent), context_(context), draft_(draft), screens_(ScreensOf(draft.Kind())) {
  BuildList();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kGrid);
  layout->addLayout(NewCommands());
  layout->addWidget(list_, 1);
}

void DocumentLines::BuildList() {
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(NewLineModel(screens_.editor_columns, context_.session.IsSeller(),
                                 draft_.Lines(), this, [this](int row) { return IsAmiss(row); }));
  list_->SetEmptyText(u"Список пуст. Нажмите «Добавить» или клавишу Insert."_s);
  connect(list_, &RecordList::InsertPressed, this, &DocumentLines::Add);
  connect(list_, &RecordList::DividePressed, this, &DocumentLines::Change);
  connect(list_, &RecordList::EnterPressed, this, &DocumentLines::Change);
  connect(list_, &RecordList::DoubleClicked, this, &DocumentLines::Change);
  connect(list_, &RecordList::DeletePressed, this, &DocumentLines::Remove);
}

QLayout* DocumentLines::NewCommands() {
  using look::IconName;
  QPushButton* add = NewCommand(this, u"add"_s, u"&Добавить"_s, IconName::kAdd);
  QPushButton* change = NewCommand(this, u"change"_s, u"&Изменить"_s, IconName::kChange);
  QPushButton* remove = NewCommand(this, u"remove"_s, u"&Удалить"_s, IconName::kRemove);
  connect(add, &QPushButton::clicked, this, &DocumentLines::Add);
  connect(change, &QPushButton::clicked, this, &DocumentLines::Change);
  connect(remove, &QPushButton::clicked, this, &DocumentLines::Remove);
  commands_ = {add, change, remove};
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGrid);
  for (QWidget* button : commands_) row->addWidget(button);
  row->addWidget(new HintPicture(HintFor(screens_.editor_name, u"Список товаров"), {list_}, this));
  row->addStretch();
  return row;
}

// Where directory or ledger can't be read nothing is marked; whatever needs them tells so.
void DocumentLines::TakeStock() {
  stock_.reset();
  IgnoreErrors([this] { stock_.emplace(draft_); });
}

bool DocumentLines::IsAmiss(int row) const {
  if (row < static_cast<int>(short_lines_.size()) && short_lines_[row]) return true;
  const DocumentLine& line = draft_.Lines()[row].line;
  return screens_.kind == DocumentKind::kShipment &&
         NoteOnPrice(line.price, line.cost, CostIs::kSecret).amiss;
}

void DocumentLines::Refresh() {
  TakeStock();
  short_lines_ = stock_ ? stock_->ShortLines() : std::vector<bool>();
  list_->Records()->Reset();
}

void DocumentLines::TellChange(int row) {
  short_lines_ = stock_ ? stock_->ShortLines() : std::vector<bool>();
  emit Changed();
  list_->Records()->Reset();  // lines below may lack goods now, or no more
  list_->SelectRow(row);
}

void DocumentLines::Add() {
  TakeStock();
  Guarded(this, [&] {
    const StockAfter on_hand = [this](const QString& goods) {
      return stock_ ? stock_->OnHand(goods) : std::nullopt;
    };
    screens_.pick(context_, draft_.Warehouse(), price_list_, window(), on_hand,
                  [this](const GoodsPick& pick) { TakePick(pick); });
  });
  list_->setFocus();
}

void DocumentLines::TakePick(const GoodsPick& pick) {
  if (draft_.AddLine(pick)) TellChange(static_cast<int>(draft_.Lines().size()) - 1);
}

void DocumentLines::TakeScan(const QString& code) {
  Guarded(this, [&] {
    const QString goods = FindByBarcode(context_.data, context_.session, code);
    const TodaysPrices prices(context_.data, context_.session, screens_.kind, draft_.Warehouse(),
                              price_list_);
    const auto pick = goods.isEmpty() ? std::nullopt : prices.PickOf(goods);
    if (!pick) return TellUnknownBarcode(window(), code, goods);
    TakeStock();
    TellChange(AddScanned(draft_, *pick));
  });
}

void DocumentLines::Change() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  const DraftLine& line = draft_.Lines()[row];
  LineSurroundings around{
      .on_hand = {},
      .flow = screens_.kind == DocumentKind::kReceipt ? Flow::kIn : Flow::kOut,
      .is_sold = screens_.kind == DocumentKind::kShipment,
      .cost_is = context_.session.IsSeller() ? CostIs::kSecret : CostIs::kShown};
  if (stock_ && !draft_.HasPosted()) around.on_hand = stock_->OnHand(line.line.name, row);
  LineDialog dialog(line, window(), around);
  if (dialog.exec() == QDialog::Accepted) {
    draft_.ChangeLine(row, dialog.Quantity(), dialog.Price(), dialog.Amount());
    TellChange(row);
  }
  list_->setFocus();
}

void DocumentLines::Remove() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  if (AskYesNo(window(), u"Вы уверены?"_s, u"Удаление"_s)) {
    list_->Records()->Remove(row, [&] { draft_.RemoveLine(row); });
    TellChange(std::min(row, static_cast<int>(draft_.Lines().size()) - 1));
  }
  list_->setFocus();
}

}  // namespace kladez
