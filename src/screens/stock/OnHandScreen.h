// "Наличие товаров на складе": what lies in a warehouse or in all of them. Corrects a quantity,
// zeroes a warehouse, prints the state.
#pragma once

#include <QWidget>

#include "books/stock/OnHand.h"
#include "screens/directories/GoodsFilter.h"
#include "ui/AppContext.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace kladez {

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
  bool RefusedToSeller();
  void Fill();
  void Change();
  void Zero();
  void Print();

  AppContext& context_;
  OnHandList on_hand_;
  bool loaded_ = false;  // a list that could not be read is never written
  GoodsFilter* filter_;
  RecordModel* model_;
  QComboBox* Combo1;  // "Склад:"
  RecordList* ListView1;
  QLabel* StatusBar1;     // "Итого наименований: ...     на сумму: ..."
  QPushButton* Command1;  // "Изменить"
  QPushButton* Command2;  // "Печать"
  QPushButton* Command3;  // "Обнулить"
  QPushButton* Command4;  // "Закрыть"
};

}  // namespace kladez
