// "Приходный кассовый ордер": the cash receipt order КО-1 with its tear-off receipt for a shipment.
// The screen is the form itself, filled in place; printing draws it on one page, without the frame
// of the parameters. No file is written.
#pragma once

#include <QHash>

#include "screens/printing/CashOrderSheet.h"
#include "screens/printing/PrintScreen.h"

class QGroupBox;
class QPrinter;

namespace kladez {

class TextLine;

class CashOrderScreen : public PrintScreen {
  Q_OBJECT

 public:
  CashOrderScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);

  // The fields of the form by their names, as they stand.
  SheetTexts Texts() const;
  // Draws the form on the printer's page; always one page.
  void PaintOn(QPrinter& printer) const;

  QGroupBox* Frame1;      // the parameters
  TextLine* Text45;       // "Сумма %:"
  TextLine* Text44;       // "НДС:"
  TextLine* Text43;       // "НСП:"
  QPushButton* Command1;  // "Закрыть"
  QPushButton* Command2;  // "Печать"

 protected:
  void Load() override;
  void SaveRates() override;

 private:
  void Build();
  QGroupBox* NewParametersFrame();
  QWidget* NewSheet();
  void Show(const CashOrder& order);
  void Print();

  QHash<QString, QWidget*> fields_;
};

}  // namespace kladez
