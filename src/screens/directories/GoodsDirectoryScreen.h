// "Справочник товаров": the editor of the goods directory, and the non-modal picker of price lists.
// The file is written by "Закрыть", a pick, and as switching to the goods alone tells; any other
// way out asks about what was not saved by then.
#pragma once

#include <QWidget>

#include "books/directories/GoodsPick.h"
#include "books/directories/GoodsView.h"
#include "ui/AppContext.h"

class QAction;
class QPushButton;

namespace kladez {

class FollowedFiles;
class GoodsBrowser;
class GoodsDirectory;
class UnsavedWork;
struct GoodsRecord;

class GoodsDirectoryScreen : public QWidget {
  Q_OBJECT

 public:
  // The editor, a child screen: "Выбрать" is hidden. Both throw filesystem_error when the directory
  // can't be read.
  explicit GoodsDirectoryScreen(AppContext& context, QWidget* parent = nullptr);
  // The picker, a window of its own that deletes itself when closed; it closes after a pick.
  GoodsDirectoryScreen(AppContext& context, PickFor pick_for, QWidget* parent);

 signals:
  void Picked(const GoodsPick& pick);
  // A chart of the selected goods is asked for.
  void ChartWanted(const QString& goods);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildLayout();
  void Wire();
  QAction* NewMove(const QString& name, const QString& caption, Qt::Key key, bool up);

  void Add();
  void Change();
  void Remove();
  void Sort();
  void Bring();
  void Move(bool up);
  void Choose();
  void AskForChart();
  void ChangeOrChoose();
  void CloseSaved();
  void ChooseView(GoodsView view);
  void ShowView();
  void Refresh();
  bool Save(void (GoodsDirectory::*save)());
  QString WhatGoes(const GoodsRecord& record) const;
  GoodsDirectory& Directory();

  AppContext& context_;
  PickFor pick_for_ = PickFor::kPriceList;
  GoodsBrowser* browser_;
  UnsavedWork* unsaved_;
  FollowedFiles* files_ = nullptr;
  QPushButton* add_;      // "Добавить"
  QPushButton* change_;   // "Изменить"
  QPushButton* remove_;   // "Удалить"
  QPushButton* sort_;     // "Сортировка"
  QPushButton* chart_;    // "График..."
  QPushButton* table_;    // "Из таблицы…"
  QPushButton* history_;  // "История…"
  QPushButton* choose_;   // "Выбрать"
  QPushButton* close_;    // "Закрыть"
  QAction* up_;           // "Порядок: вверх"
  QAction* down_;         // "Порядок: вниз"
};

}  // namespace kladez
