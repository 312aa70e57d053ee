#include "screens/directories/TableColumnsPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "books/prices/PriceStore.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// The captions of the fields, with the letter to press.
constexpr QStringView kCaptions[kGoodsFields] = {
    u"&Наименование:", u"&Ед.изм.:",  u"Цена за&купа:", u"Цена &реализации:", u"Стр&ана:",
    u"N &декларации:", u"&Штрихкод:", u"&Минимум:",     u"&Группа:"};

constexpr int kLetters = 16;

}  // namespace

TableColumnsPanel::TableColumnsPanel(AppContext& context, const QString& warehouse, int price_list,
                                     QWidget* parent)
    : QWidget(parent),
      context_(context),
      add_new_(new QCheckBox(u"Добавлять нов&ые товары"_s, this)),
      group_(NewFreeChoice(this, u"group"_s)),
      warehouse_(new QComboBox(this)),
      price_list_(new QComboBox(this)) {
  auto* fields = new Columns(look::kGrid);
  for (size_t i = 0; i < kGoodsFields; ++i) {
    columns_[i] = new QComboBox(this);
    columns_[i]->setObjectName(u"column%1"_s.arg(i + 1));
    fields->Add(NewRow(kCaptions[i].toString(), columns_[i]));
    connect(columns_[i], &QComboBox::activated, this,
            [this, i](int row) { Give(static_cast<GoodsField>(i), row - 1); });
  }
  add_new_->setObjectName(u"add_new"_s);
  add_new_->setChecked(true);
  group_->lineEdit()->setPlaceholderText(u"как в таблице"_s);
  warehouse_->setObjectName(u"Combo1"_s);
  warehouse_->addItems(context.session.warehouses);
  warehouse_->setCurrentText(warehouse);
  price_list_->setObjectName(u"Combo2"_s);
  ListPrices();
  price_list_->setCurrentIndex(std::min(price_list + 1, price_list_->count() - 1));
  fields->Add(add_new_);
  fields->Add(NewRow(u"Новые в гр&уппу:"_s, group_));
  fields->Add(NewRow(u"&Склад:"_s, warehouse_));
  fields->Add(NewRow(u"Прайс-&лист:"_s, price_list_));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(fields);
  connect(warehouse_, &QComboBox::activated, this, [this] {
    ListPrices();
    emit Changed();
  });
  connect(price_list_, &QComboBox::activated, this, &TableColumnsPanel::Changed);
  connect(add_new_, &QCheckBox::toggled, this, &TableColumnsPanel::Changed);
  connect(group_, &QComboBox::activated, this, &TableColumnsPanel::Changed);
  connect(group_->lineEdit(), &QLineEdit::editingFinished, this, &TableColumnsPanel::Changed);
}

QWidget* TableColumnsPanel::NewRow(const QString& caption, QWidget* field) {
  auto* row = new QWidget(this);
  auto* layout = new QVBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kTight);
  layout->addWidget(NewLabel(caption, field, row));
  layout->addWidget(field);
  BoundByLetters(qobject_cast<QComboBox*>(field), kLetters);
  return row;
}

void TableColumnsPanel::ListPrices() {
  price_list_->clear();
  price_list_->addItem(u"не загружать"_s);
  price_list_->addItems(
      PriceStore(context_.data, context_.session).Names(warehouse_->currentText()));
}

PlainPrice TableColumnsPanel::Plain() const {
  return price_list_->currentIndex() > 0 ? PlainPrice::kSale : PlainPrice::kPurchase;
}

void TableColumnsPanel::Show(const Sheet& sheet, const SheetLayout& layout,
                             const QStringList& groups) {
  layout_ = layout;
  QStringList titles{u"нет"_s};
  for (int i = 0; i < sheet.columns; ++i) titles << ColumnTitle(sheet, layout, i);
  for (size_t i = 0; i < kGoodsFields; ++i) {
    columns_[i]->clear();
    columns_[i]->addItems(titles);
    columns_[i]->setCurrentIndex(layout_.columns[i] + 1);
  }
  const QString group = group_->currentText();
  group_->clear();
  group_->addItems(groups);
  group_->setCurrentIndex(-1);
  group_->setEditText(group);
}

// A column that is one thing now is no other.
void TableColumnsPanel::Give(GoodsField field, int column) {
  layout_.Give(field, column);
  for (size_t i = 0; i < kGoodsFields; ++i) columns_[i]->setCurrentIndex(layout_.columns[i] + 1);
  emit Changed();
}

BringChoice TableColumnsPanel::Choice() const {
  return {.layout = layout_,
          .add_new = add_new_->isChecked(),
          .group = group_->currentText().simplified(),
          .warehouse = warehouse_->currentText(),
          .price_list = price_list_->currentIndex() - 1};
}

}  // namespace kladez
