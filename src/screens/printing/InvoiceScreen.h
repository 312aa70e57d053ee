// The tax invoice ("chFactPrint") and the bill for payment ("UhodSch"): one screen, told apart by
// the form. Seller on the left, buyer on the right, parameters and totals, signatures; it scrolls
// where the display is small. The boxes in front of the fields matter in dollars only.
#pragma once

#include "books/printing/InvoicePage.h"
#include "books/printing/PaymentDetails.h"
#include "screens/printing/NoteBlock.h"
#include "screens/printing/ParametersBlock.h"
#include "screens/printing/PartyBlock.h"
#include "screens/printing/PrintDialog.h"
#include "screens/printing/TotalsBlock.h"

class QRadioButton;

namespace kladez {

class InvoiceScreen : public PrintDialog {
  Q_OBJECT

 public:
  InvoiceScreen(AppContext& context, InvoiceKind kind, const PrintSource& source,
                QWidget* parent = nullptr);

 private:
  QRadioButton* NewOption(const QString& name, const QString& caption);
  QLayout* NewHeadBlock();
  QLayout* NewPaymentBlock();
  QWidget* NewSignatureBlock();
  void BuildSheet(QWidget* sheet);
  void Build();

  void Reload();
  void Load();
  void LoadTotals();
  void Print();
  InvoiceCurrency PageCurrency() const;
  PrintParameters Parameters() const;
  InvoiceForm Form() const;
  bool HasPaymentCode() const;
  void CheckPaymentCode();
  PaymentDetails Payment(const InvoiceForm& form) const;

  const InvoiceKind kind_;
  TextLine* const title_;
  QRadioButton* const in_roubles_;
  QRadioButton* const in_dollars_;
  PartyBlock seller_;
  PartyBlock buyer_;
  TickedField payment_number_;
  TickedField payment_date_;
  TextLine* const note_;
  ParametersBlock parameters_;
  QCheckBox* const discount_once_;
  QCheckBox* const payment_code_;  // bills only
  TotalsBlock totals_;
  TextLine* const director_;
  TextLine* const accountant_;
  TextLine* const trader_;
  NoteBlock notes_;

  QString due_;  // "Итого к оплате:" in figures
  std::vector<InvoiceRow> rows_;
  bool rows_ready_ = false;
};

}  // namespace kladez
