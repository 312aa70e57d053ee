// Which column of a table is what, one list for each field of goods, and the choice that goes with
// them: the group of new goods, the price list of sale prices.
#pragma once

#include <QWidget>
#include <array>

#include "books/prices/BringPlan.h"
#include "ui/AppContext.h"

class QCheckBox;
class QComboBox;

namespace kladez {

class TableColumnsPanel : public QWidget {
  Q_OBJECT

 public:
  // Begins with a warehouse's price list; with none for index -1.
  TableColumnsPanel(AppContext& context, const QString& warehouse, int price_list, QWidget* parent);

  // What a price column without a word of its own is taken for.
  PlainPrice Plain() const;
  // Shows a table's columns as they were guessed.
  void Show(const Sheet& sheet, const SheetLayout& layout, const QStringList& groups);
  BringChoice Choice() const;

 signals:
  void Changed();

 private:
  QWidget* NewRow(const QString& caption, QWidget* field);
  void ListPrices();
  void Give(GoodsField field, int column);

  AppContext& context_;
  SheetLayout layout_;
  std::array<QComboBox*, kGoodsFields> columns_;
  QCheckBox* add_new_;     // "Добавлять новые товары"
  QComboBox* group_;       // "Новые в группу:"
  QComboBox* warehouse_;   // "Склад:"
  QComboBox* price_list_;  // "Прайс-лист:"
};

}  // namespace kladez
