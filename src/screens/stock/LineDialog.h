// The dialog that changes the quantity and price of one line of a document.
#pragma once

#include <QDialog>
#include <optional>

#include "books/stock/DocumentDraft.h"
#include "books/stock/LineNotes.h"

class QLabel;

namespace kladez {

class TextLine;
class TextLineDecimal;
class TextLineNumber;

// What the dialog tells of the line besides; what is left empty is not told.
struct LineSurroundings {
  std::optional<double> on_hand;  // what the warehouse holds after the other lines
  Flow flow = Flow::kOut;
  bool is_sold = false;  // its price is compared with its cost
  CostIs cost_is = CostIs::kShown;
};

class LineDialog : public QDialog {
  Q_OBJECT

 public:
  explicit LineDialog(const DraftLine& line, QWidget* parent = nullptr,
                      const LineSurroundings& around = {});

  QString Quantity() const;
  QString Price() const;
  QString Amount() const;

 private:
  void Recompute();
  void ShowNotes();

  const DocumentLine line_;
  const LineSurroundings around_;
  QLabel* stock_note_;
  QLabel* price_note_;
  TextLine* name_;            // "Товар:"
  TextLineNumber* quantity_;  // "Кол-во:"
  TextLine* unit_;            // "Ед. изм.:"
  TextLineDecimal* price_;    // "Цена:"
  TextLineDecimal* amount_;   // "Сумма:"
};

}  // namespace kladez
