// The register of a kind of documents: the heads of the files of a directory that a filter lets
// pass. The files are the books: what another showing asks for again is what has
// changed in them.
#pragma once

#include <QDate>
#include <functional>
#include <vector>

#include "books/stock/DocumentBook.h"
#include "books/stock/DocumentHeads.h"
#include "books/store/DataDir.h"
#include "formats/Progress.h"
#include "formats/TextPool.h"

namespace kladez {

struct RegisterFilter {
  enum class Period {
    kMonth,  // "За месяц:": that month of the current year, whatever the year box says
    kYear,   // "За год:"
    kDay,    // "За число:": compared as "dd.mm.yy", two digits of the year
    kRange,  // "с … по …", both days included
  };

  Period period = Period::kMonth;
  int month = 1;      // 1 to 12
  QString year = {};  // "2026"
  QDate day = {};
  QDate from = {};
  QDate to = {};

  // Whether the filter shows a document of that date.
  bool Passes(QDate date, QDate today) const;
};

struct RegisterRow {
  QString file;       // "0012.prh"
  DocumentHead head;  // sums and discount passed through ToNumberOr
};

class DocumentRegister {
 public:
  // Empty until Load. Data and session outlive it.
  DocumentRegister(const DataDir& data, const Session& session, DocumentKind kind)
      : data_(data), session_(session), kind_(kind), heads_(kind) {}

  // Reads the documents of a warehouse in the order of their file names, or from the last to the
  // first. One without a valid date is left out. Throws filesystem_error for a directory or file
  // that can't be read, and WorkCancelled; the rows stay as they were then.
  void Load(const QString& warehouse, const RegisterFilter& filter, QDate today, bool descending,
            const Progress& progress = {});
  // Whether the documents of the warehouse may be others than those of the last Load.
  bool MayHaveChanged(const QString& warehouse) {
    return heads_.MayHaveChanged(data_, DocumentDirectory(session_, kind_, warehouse));
  }
  void Clear() { *this = DocumentRegister(data_, session_, kind_); }

  // In the order that Load was asked for.
  const std::vector<RegisterRow>& Rows() const { return rows_; }
  // How many documents bear the number, those too that the filter hides; as of the last Load.
  int CountOfNumber(const QString& number);
  // From the first to the last day of any document, those too that the filter hides; no days where
  // there is none.
  QDate FirstDay() const { return first_day_; }
  QDate LastDay() const { return last_day_; }

 private:
  std::reference_wrapper<const DataDir> data_;
  std::reference_wrapper<const Session> session_;
  DocumentKind kind_;
  DocumentHeads heads_;
  std::vector<RegisterRow> rows_;
  // Of all documents, and how many bear each.
  TextPool numbers_;
  std::vector<int> number_counts_;
  QDate first_day_;
  QDate last_day_;
};

// Deletes a document in one save. With `reverse` a reversing record for each line goes to the end
// of each ledger it had posted to; what it posted is not touched. Throws filesystem_error, nothing
// changed then.
void DeleteDocument(const DataDir& data, const Session& session, DocumentKind kind,
                    const QString& warehouse, const QString& file, bool reverse);

}  // namespace kladez
