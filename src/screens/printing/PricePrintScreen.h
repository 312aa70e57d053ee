// "Параметры печати прайса" ("pricePrint"): the options of a printable price list. They are not
// kept: each time the screen opens with its proposals.
#pragma once

#include <QDialog>

#include "books/printing/PricePage.h"
#include "screens/printing/PrintFields.h"
#include "ui/AppContext.h"

class QGridLayout;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace kladez {

class TextLineNumber;

// The price screen's rows as they stand, and the warehouse chosen there.
struct PricePrintSource {
  QString warehouse;
  PricePageRows rows;
};

class PricePrintScreen : public QDialog {
  Q_OBJECT

 public:
  PricePrintScreen(AppContext& context, const PricePrintSource& source, QWidget* parent = nullptr);

 private:
  // A check box that switches the field beside it, and what the two tell of the page.
  struct Choice {
    QStringView check;
    QString caption;
    bool on;
    QStringView text;
    QString proposal;
    std::optional<QString> PricePageOptions::*value;
  };
  struct ChoiceField {
    TickedField field;
    std::optional<QString> PricePageOptions::*value;
  };
  struct GoodsOption {
    QRadioButton* option;
    PrintedGoods goods;
  };

  TextLineNumber* NewNumber(const QString& name, const QString& value, int length);
  struct Frame {
    QGroupBox* box;
    QVBoxLayout* column;  // for what stands in it, beside its question mark
  };
  Frame NewFrame(const QString& title);
  void AddChoices(QGridLayout* grid, const std::vector<Choice>& choices);
  // Behind the choice in that row of the grid.
  TextLineNumber* AddPercent(QGridLayout* grid, int row, const QString& name);
  QWidget* NewOther();
  QWidget* NewColumns();
  QWidget* NewBorders();
  QWidget* NewGoods();
  QWidget* NewOrder();
  void BuildLayout(QPushButton* print, QPushButton* cancel);
  void FollowGroups();
  void ShowEffect();

  PricePageOptions Options() const;
  void Print();

  AppContext& context_;
  const PricePrintSource source_;
  std::vector<ChoiceField> choices_;  // those of the head first
  size_t head_size_ = 0;
  TextLineNumber* purchase_percent_;
  TextLineNumber* sale_percent_;
  QCheckBox* stock_;
  QCheckBox* all_warehouses_;
  QCheckBox* goods_framed_;
  QCheckBox* groups_framed_;
  std::vector<GoodsOption> goods_;
  TextLineNumber* at_most_;
  QCheckBox* by_groups_;
  QCheckBox* with_gap_;
  TextLineNumber* gap_;  // rows
  QLabel* effect_;
};

}  // namespace kladez
