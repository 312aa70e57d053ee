// The tax invoice and the bill for payment as pages, each in roubles or in dollars. The two share
// the parties, the computed rows and, in dollars, the layout.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "books/printing/InvoiceRows.h"
#include "formats/PartyFile.h"

namespace kladez {

// A seller or buyer as the screen shows it. The boxes matter in dollars only.
struct InvoiceParty {
  TickedText name;
  TickedText address;  // the legal one
  TickedText account;  // its box stands for the bank too
  QString bank;
  TickedText correspondent;
  TickedText bank_code;
  TickedText tax_number;
  TickedText industry_code;
  TickedText firm_code;
  TickedText shipper;  // of a buyer: who receives the goods
};

enum class InvoiceKind { kTaxInvoice, kBill };

// What is printed: the screen's fields as they stand.
struct InvoiceForm {
  InvoiceKind kind = InvoiceKind::kTaxInvoice;
  InvoiceCurrency currency = InvoiceCurrency::kRoubles;
  QString title;
  InvoiceParty seller;
  InvoiceParty buyer;
  TickedText payment_number;  // the document of the payment
  TickedText payment_date;
  QString director;
  QString accountant;
  QString trader;  // an individual entrepreneur who sells
  PrintParameters parameters;
  TotalTexts totals;
  bool with_vat = true;
  bool with_sales_tax = true;
  QString rub;  // short name of the currency
  std::vector<InvoiceRow> rows;
};

// The page, Windows-1251. Throws InputError for a total, discount or row figure that is no number.
QByteArray InvoicePage(const InvoiceForm& form);

}  // namespace kladez
