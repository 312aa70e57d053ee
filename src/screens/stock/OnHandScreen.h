// "Наличие товаров на складе": what lies in a warehouse or in all of them. Corrects a quantity,
// zeroes a warehouse, prints the state.
#pragma once

#include <QWidget>

#include "books/stock/OnHand.h"
#include "screens/directories/GoodsFilter.h"
#include "ui/AppContext.h"
#include "ui/HistoryCommand.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace kladez {

class FollowedFiles;

class OnHandScreen : public QWidget {
  Q_OBJECT

 public:
  explicit OnHandScreen(AppContext& context, QWidget* parent = nullptr);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildList();
  void BuildLayout();
  bool AllChosen() const;
  GoodsInWarehouse ForHistory() const;
  bool RefusedToSeller();
  QStringList Warehouses() const;
  void Fill();
  void Show(OnHandList list);
  void Change();
  void Zero();
  void Print();

  AppContext& context_;
  OnHandList on_hand_;
  bool loaded_ = false;  // a list that could not be read is never written
  GoodsFilter* filter_;
  FollowedFiles* files_ = nullptr;
  RecordModel* model_;
  QComboBox* warehouse_;  // "Склад:"
  RecordList* list_;
  QLabel* status_;        // "Итого наименований: ...     на сумму: ..."
  QPushButton* change_;   // "Изменить"
  QPushButton* print_;    // "Печать"
  QPushButton* zero_;     // "Обнулить"
  QPushButton* history_;  // "История…"
  QPushButton* close_;    // "Закрыть"
};

}  // namespace kladez
