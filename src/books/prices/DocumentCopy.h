// A new document with the lines of another: the same party or warehouses, today's date and the next
// number, so that what is sold every week is not typed every week.
#pragma once

#include "books/stock/DocumentDraft.h"

namespace kladez {

struct CopyChoice {
  bool todays_prices = true;  // else those of the document
  QString price_list = {};    // of today's sale prices
  QString discount = {};      // percent; empty: that of the document
};

// The copy is a draft: nothing is written before it is saved. Goods that the directory has no more
// keep the document's price. Throws filesystem_error.
DocumentDraft CopyOf(const DocumentDraft& document, const CopyChoice& choice, QDate today);

}  // namespace kladez
