// "История товара": every document line of one item with the stock after it, of a warehouse or of
// all, and the stock of any day. Opens the documents.
#pragma once

#include <QDialog>

#include "books/reports/GoodsHistory.h"
#include "ui/AppContext.h"

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace kladez {

class DateField;
class RecordList;
class RecordModel;
class TextChoice;

class GoodsHistoryDialog : public QDialog {
  Q_OBJECT

 public:
  // Begins with the warehouse; with an empty one, with all.
  GoodsHistoryDialog(AppContext& context, GoodsHistory history, const QString& warehouse,
                     QWidget* parent = nullptr);

 private:
  QHBoxLayout* NewChoices(const QString& warehouse);
  void BuildList();
  QString Cell(int row, int column) const;
  void ShowRows();
  void ShowStock();
  void SelectDay();
  void Open();

  AppContext& context_;
  const GoodsHistory history_;
  std::vector<GoodsHistory::Row> rows_;
  TextChoice* warehouse_;  // "Склад:"
  DateField* day_;         // "Остаток на:"
  QLabel* stock_;          // "12 пач."
  RecordModel* model_;
  RecordList* list_;
  QLabel* status_;     // "Приход: ...     Расход: ...     Остаток: ..."
  QPushButton* open_;  // "Открыть"
  QPushButton* close_;
};

// Reads the documents, which the user may end, and shows the dialog.
void ShowGoodsHistory(AppContext& context, const QString& goods, const QString& warehouse,
                      QWidget* parent);

}  // namespace kladez
