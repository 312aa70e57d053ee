// The print-out of a register, journal.htm: its documents as they are filtered, found and sorted,
// and what they come to.
#pragma once

#include <QDate>
#include <functional>
#include <vector>

#include "books/stock/RegisterView.h"
#include "formats/TextLines.h"

namespace kladez {

struct JournalColumn {
  QString title;
  QString DocumentHead::*field;
  int width;  // percent of the page
  bool number = false;
  bool total = false;  // summed up in the last row
};

struct Journal {
  QString title;      // "Приход"
  QString warehouse;  // empty for transfers
  RegisterFilter chosen;
  QString sought;  // the search, empty without one
  std::vector<JournalColumn> columns;
};

// Which documents the filter chose, in a line: "Месяц: Ноябрь 2026". A month is that of `today`'s
// year.
QString ChosenText(const RegisterFilter& filter, QDate today);

// Hands the bytes of the page on as they come. Throws WorkCancelled.
void WriteJournal(const RegisterView& rows, const Journal& journal, QDate today,
                  const ByteSink& sink, const Progress& progress);

}  // namespace kladez
