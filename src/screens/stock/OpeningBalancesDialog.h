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
  bool TryBook();

  AppContext& context_;
  OpeningBalances balances_;
  RecordModel* model_;
  QComboBox* warehouse_;  // "Склад:"
  RecordList* list_;
  QPushButton* add_;     // "Добавить"
  QPushButton* change_;  // "Изменить"
  QPushButton* remove_;  // "Удалить"
  QPushButton* ok_;      // "OK"
  QPushButton* cancel_;  // "Отмена"
};

}  // namespace kladez
