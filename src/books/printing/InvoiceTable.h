// The goods table of invoices and bills: which figures of a row stand in which column.
#pragma once

#include <span>

#include "books/printing/InvoiceRows.h"
#include "books/printing/PageWriter.h"

namespace kladez {

struct InvoiceColumn {
  enum class Kind { kRowNumber, kName, kText, kCentred, kNumber };

  QStringView heading;
  int width;  // percent
  Kind kind = Kind::kText;
  QString InvoiceRow::*field = nullptr;   // none: the column stays empty
  QString InvoiceSums::*total = nullptr;  // what stands in the total row
};

using InvoiceColumns = std::span<const InvoiceColumn>;

// The columns of each form, from left to right.
InvoiceColumns RoubleInvoiceColumns();  // eleven
InvoiceColumns DollarInvoiceColumns();  // thirteen
InvoiceColumns BillColumns();           // six

inline constexpr PageFont kSmallFont{.size = 2};

enum class HeadingStyle { kCentred, kAsColumns };
// The row of headings, centred, or each as its column stands.
std::vector<PageCell> HeadingCells(InvoiceColumns columns, HeadingStyle style);
// 1, 2, 3 ... under the headings.
void WriteColumnNumbers(PageWriter& page, InvoiceColumns columns);
void WriteInvoiceRows(PageWriter& page, InvoiceColumns columns,
                      const std::vector<InvoiceRow>& rows);
// `caption` stands in the column of names. Throws InputError for a figure that is no number.
void WriteInvoiceTotal(PageWriter& page, InvoiceColumns columns,
                       const std::vector<InvoiceRow>& rows, const PageCell& caption);

}  // namespace kladez
