// "Приходный кассовый ордер": the cash receipt order КО-1 with its tear-off receipt for a shipment.
// The screen is the form itself, filled in place; printing draws it on one page, without the frame
// of the parameters. No file is written.
#pragma once

#include <QHash>

#include "books/printing/CashOrder.h"
#include "screens/printing/CashOrderSheet.h"
#include "screens/printing/NoteBlock.h"
#include "screens/printing/ParametersBlock.h"
#include "screens/printing/PrintDialog.h"

class QCheckBox;
class QPrinter;

namespace kladez {

class CashOrderScreen : public PrintDialog {
  Q_OBJECT

 public:
  CashOrderScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);

  // The fields of the form by their names, as they stand.
  SheetTexts Texts() const;
  // Draws the form on the printer's page; always one page.
  void PaintOn(QPrinter& printer) const;

 private:
  QWidget* NewSheet();
  QWidget* NewParametersFrame();
  void Build();
  void Reload();
  void Load();
  void Show(const CashOrder& order);
  void Print();

  QHash<QString, QWidget*> fields_;
  ParametersBlock parameters_;
  QCheckBox* const with_discount_;
  NoteBlock notes_;
};

}  // namespace kladez
