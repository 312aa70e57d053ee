// "Справочник товаров" as a modal picker: chooses a row for a receipt, the opening balances or a
// chart. For a receipt a tick keeps it open for the next one. Its check marks are those of the
// price lists, and are written back whenever it closes.
#pragma once

#include <QDialog>

#include "books/directories/GoodsPick.h"
#include "books/directories/GoodsView.h"
#include "books/stock/LineNotes.h"
#include "ui/AppContext.h"

class QBoxLayout;
class QCheckBox;
class QLabel;
class QPushButton;

namespace kladez {

class GoodsBrowser;

class GoodsPicker : public QDialog {
  Q_OBJECT

 public:
  // Throws filesystem_error when the directory can't be read.
  GoodsPicker(AppContext& context, PickFor pick_for, QWidget* parent = nullptr);

  // What was picked last; nothing when the screen was closed in any other way. A group is handed
  // over like goods, without quantity and price, except for a chart, where it only closes the
  // screen.
  const std::optional<GoodsPick>& Pick() const { return pick_; }

  // What the document says of the goods in its warehouse, told beside the quantity.
  void TellOnHand(StockAfter on_hand) { on_hand_ = std::move(on_hand); }

  void done(int result) override;

 signals:
  // Each pick as it is made.
  void Picked(const GoodsPick& pick);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void AddStayTick(QBoxLayout* row);
  void Take(const GoodsPick& pick);
  void Choose();
  void ChooseView(GoodsView view);
  void ReadAgain(GoodsView view);
  void TickAnew();

  AppContext& context_;
  const PickFor pick_for_;
  GoodsBrowser* browser_;
  QPushButton* choose_;        // "Выбрать"
  QCheckBox* stay_ = nullptr;  // "Не закрывать", of a receipt
  QLabel* count_ = nullptr;    // and how many rows were picked
  int picks_ = 0;
  StockAfter on_hand_;
  FileState marks_;
  std::vector<bool> ticks_;
  std::optional<GoodsPick> pick_;
};

}  // namespace kladez
