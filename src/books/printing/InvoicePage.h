// The tax invoice and the bill for payment as pages, each in roubles or in dollars. The two share
// the parties, the computed rows and, in dollars, the layout.
#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

#include "books/printing/InvoiceRows.h"
#include "formats/PartyFile.h"

namespace kladez {

// A seller or buyer as the screen shows it. The boxes matter in dollars only; that of the account
// stands for the bank too. The shipper of a buyer is who receives the goods.
class InvoiceParty {
 public:
  // The text of a field and whether it is printed.
  TickedText& operator[](PartyField field) { return fields_[static_cast<size_t>(field)]; }
  const TickedText& operator[](PartyField field) const {
    return fields_[static_cast<size_t>(field)];
  }

 private:
  std::array<TickedText, static_cast<size_t>(PartyField::kAccountant) + 1> fields_;
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
  PaperSums sums;
  std::vector<InvoiceRow> rows;
  QString
      payment_picture;  // rouble bills: the file of the code to pay by, beside the page; or none
};

// The page, Windows-1251. Throws InputError for a total, discount or row figure that is no number.
QByteArray InvoicePage(const InvoiceForm& form);

}  // namespace kladez
