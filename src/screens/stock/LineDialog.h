// The dialog that changes the quantity and price of one line of a document.
#pragma once

#include <QDialog>

#include "books/stock/DocumentDraft.h"

class QPushButton;

namespace kladez {

class TextLine;
class TextLineDecimal;
class TextLineNumber;

class LineDialog : public QDialog {
  Q_OBJECT

 public:
  explicit LineDialog(const DraftLine& line, QWidget* parent = nullptr);

  QString Quantity() const;
  QString Price() const;
  QString Amount() const;

 private:
  void Recompute();

  TextLine* name_;            // "Товар:"
  TextLineNumber* quantity_;  // "Кол-во:"
  TextLine* unit_;            // "Ед. изм.:"
  TextLineDecimal* price_;    // "Цена:"
  TextLineDecimal* amount_;   // "Сумма:"
};

}  // namespace kladez
