// "Справочник товаров" as a modal picker: chooses one row for a receipt, the opening balances or a
// chart. Its check marks are those of the price lists, and are written back whenever it closes.
#pragma once

#include <QDialog>

#include "books/directories/GoodsPick.h"
#include "books/directories/GoodsView.h"
#include "ui/AppContext.h"

class QPushButton;

namespace kladez {

class GoodsBrowser;

class GoodsPicker : public QDialog {
  Q_OBJECT

 public:
  // Throws filesystem_error when the directory can't be read.
  GoodsPicker(AppContext& context, PickFor pick_for, QWidget* parent = nullptr);

  // What was picked; nothing when the screen was closed in any other way. A group is handed over
  // like goods, without quantity and price, except for a chart, where it only closes the screen.
  const std::optional<GoodsPick>& Pick() const { return pick_; }

  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Choose();
  void ChooseView(GoodsView view);
  void TickAnew();

  AppContext& context_;
  const PickFor pick_for_;
  GoodsBrowser* browser_;
  QPushButton* Command7;  // "Выбрать"
  FileState marks_;
  std::vector<bool> ticks_;
  std::optional<GoodsPick> pick_;
};

}  // namespace kladez
