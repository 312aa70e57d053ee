// The screen of the tax invoice and of the bill for payment: one machinery, told apart by the form.
// Seller on the left, buyer on the right, signatures, parameters and totals below; it scrolls where
// the display is small. The boxes in front of the fields matter in dollars only.
#pragma once

#include "books/printing/InvoicePage.h"
#include "screens/printing/TotalsScreen.h"

class QComboBox;
class QRadioButton;
class QVBoxLayout;

namespace kladez {

class InvoiceScreen : public TotalsScreen {
  Q_OBJECT

 public:
  struct TickedField {
    QCheckBox* tick;
    TextLine* text;
  };
  // The fields of one party.
  struct PartyFields {
    QCheckBox* name_tick;
    QComboBox* name;
    TickedField address;
    TickedField tax_number;
    TickedField bank_code;
    TickedField account;
    TextLine* bank;
    TickedField correspondent;
    TickedField industry_code;
    TickedField firm_code;
    TickedField shipper;
  };

  TextLine* Text1;        // the title
  QRadioButton* Option1;  // "Печать в рублях"
  QRadioButton* Option2;  // "Печать в USD"
  PartyFields seller;     // Text2, Text3 ... with Check1, Check2 ...
  PartyFields buyer;      // Text14, Text15 ... with Check9, Check10 ...
  QCheckBox* Check8;      // "К платежно-расчетному документу N:"
  TextLine* Text12;       // its number
  QCheckBox* Check12;     // "от:"
  TextLine* Text13;       // its date
  TextLine* Text33;       // "Примечание:"
  TextLine* Text34;       // "Руководитель:"
  TextLine* Text36;       // "Главный бухгалтер:"
  TextLine* Text35;       // "ИП:"
  QPushButton* Command1;  // "Печать"
  QPushButton* Command2;  // "Отмена"
  QPushButton* Command5;  // "Справка"

 protected:
  InvoiceScreen(AppContext& context, const PrintSource& source, const QString& name,
                InvoiceKind kind, QWidget* parent);

  void Load() override;
  void LoadTotals() override;

 private:
  void Build();
  void BuildCommands(QVBoxLayout* layout);
  QWidget* NewHeadBlock();
  QWidget* NewPartyBlock(PartyKind kind);
  QWidget* NewPaymentBlock();
  QWidget* NewSignatureBlock();
  QWidget* NewBox(const QString& title, QLayout* content);
  void BuildSheet(QWidget* sheet);
  void ChainTabs();

  void LoadParty(PartyKind kind);
  void Print();
  InvoiceCurrency TheCurrencyOfPage() const;
  InvoiceForm Form() const;

  const InvoiceKind kind_;
  std::vector<InvoiceRow> rows_;
  bool rows_ready_ = false;
};

}  // namespace kladez
