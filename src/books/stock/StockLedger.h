// Postings on the stock ledger of a warehouse, <warehouse>\товар.usl. A posting works on the plain
// lines of the file, not on its records: a goods name is compared with every line, names,
// quantities and units alike, from the first, and the line after the first equal one is the
// quantity that changes. Old ledgers rely on that, odd as it is. A name that stands in the very
// last line, with no line after it, counts as not found.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <span>
#include <vector>

#include "books/store/SaveSet.h"
#include "formats/LedgerFile.h"

namespace kladez {

// What happens to the quantity, and what a name that is not found is entered with.
enum class Posting {
  kReceive,          // old plus quantity, in full precision; entered with the quantity's text
  kReceiveAsNumber,  // the same; entered with the quantity as a number, as transfers do
  kIssue,            // old minus quantity, "#0.#0"; entered with 0 minus quantity, likewise.
                     // Receiving does not round: the two are meant to differ.
};

class StockLedger {
 public:
  // The bytes of the file as they are; they may be empty.
  explicit StockLedger(QByteArray bytes);

  // Posts the records in order, each seeing what the ones before it have changed. Takes time in
  // proportion to the lines of the ledger and the records, not to their product. Throws
  // std::system_error for a name or unit that Windows-1251 cannot hold, nothing changed then.
  void Post(Posting posting, std::span<const LedgerRecord> records);

  // The whole file with all postings.
  QByteArray Bytes() const;

 private:
  // Where a line begins in bytes_; lines that were added follow, numbered on from the end.
  using Place = size_t;

  friend class NameIndex;
  Place End() const { return static_cast<Place>(bytes_.size()); }
  bool Exists(Place line) const { return line < End() + added_.size(); }
  QByteArrayView At(Place line) const;
  Place After(Place line) const;
  QByteArrayView Original(Place line) const;

  QByteArray bytes_;
  // Years of goods make a million lines, of which a posting changes some fifty: only those are
  // kept apart.
  std::map<Place, QByteArray> changed_;
  std::vector<QByteArray> added_;
};

// Adds records at the end of a ledger, the form of every reversal: the first record of a name stays
// as it is. Throws filesystem_error where the file is missing.
void AppendToLedger(SaveSet& save, const QString& path, std::span<const LedgerRecord> records);

}  // namespace kladez
