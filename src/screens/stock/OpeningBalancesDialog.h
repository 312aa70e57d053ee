// "Занесение остатков": books goods into a warehouse without a document.
#pragma once

#include <QDialog>

#include "books/stock/OpeningBalances.h"
#include "ui/AppContext.h"

class QComboBox;
class QPushButton;

namespace kladez {

class RecordList;
class RecordModel;

class OpeningBalancesDialog : public QDialog {
  Q_OBJECT

 public:
  explicit OpeningBalancesDialog(AppContext& context, QWidget* parent = nullptr);

 private:
  void BuildList();
  void BuildLayout();
  void Add();
  void Change();
  void Remove();
  void Book();

  AppContext& context_;
  OpeningBalances balances_;
  RecordModel* model_;
  QComboBox* Combo1;  // "Склад:"
  RecordList* ListView1;
  QPushButton* Command1;  // "Добавить"
  QPushButton* Command2;  // "Изменить"
  QPushButton* Command3;  // "Удалить"
  QPushButton* Command4;  // "OK"
  QPushButton* Command5;  // "Отмена"
};

}  // namespace kladez
