// "Загрузка таблицы": brings goods and prices in out of a file or the clipboard of a spreadsheet.
// It shows what would come of each row before anything is written; one command then writes all.
#pragma once

#include <QDialog>
#include <optional>

#include "books/prices/GoodsBringer.h"
#include "ui/AppContext.h"
#include "ui/controls/RecordList.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace kladez {

class TableColumnsPanel;

class LoadTableDialog : public QDialog {
  Q_OBJECT

 public:
  // The price list that sale prices go to at first, told by its place; none for -1. Throws
  // filesystem_error when the goods directory can't be read.
  LoadTableDialog(AppContext& context, const QString& warehouse, int price_list, QWidget* parent);

 private:
  void BuildLayout();
  RecordModel* NewModel();
  QString Text(int row, int column) const;
  void OpenFile();
  void Paste();
  void Take(const QString& from, const Sheet& sheet);
  void PlanAnew();
  void ShowRows();
  void Load();
  QString Summary() const;

  AppContext& context_;
  std::optional<GoodsBringer> bringer_;  // read anew where a save came too late
  Sheet sheet_;
  BringPlan plan_;
  std::vector<size_t> shown_;  // rows of the plan

  QLabel* from_;
  QPushButton* open_;   // "Открыть файл…"
  QPushButton* paste_;  // "Из буфера"
  TableColumnsPanel* columns_;
  QComboBox* filter_;  // "Показать:"
  RecordModel* model_;
  RecordList* list_;
  QLabel* summary_;
  QPushButton* load_;    // "Загрузить"
  QPushButton* cancel_;  // "Отмена"
};

// Shows the dialog, unless the role may not change prices; whether a table was loaded.
bool LoadTable(AppContext& context, QWidget* parent, const QString& warehouse = {},
               int price_list = -1);

}  // namespace kladez
