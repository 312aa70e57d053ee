// What a check of the books finds: the place, what it means in the shop's words, and the repair
// where one is safe; and the stock of every goods beside what the documents say of it.
#pragma once

#include <QString>
#include <utility>
#include <vector>

namespace kladez {

// Each is one save that loses nothing a person has typed into the books.
enum class Repair {
  kNone,
  kLineEnds,         // every line ends in CR LF
  kEncoding,         // UTF-8 becomes Windows-1251
  kEmptyEnd,         // no empty lines at the end of a list
  kDoubleWarehouse,  // a warehouse stands in the list once
  kUnknownPrices,    // no rows of goods that the directory lacks, which no screen shows
  kUnknownMarks,     // the same of ticks
  kListWarehouse,    // a folder with a ledger is in the list again
  kMakeWarehouse,    // a listed warehouse has its folder, empty
};

struct Finding {
  QString file;  // below the Database's directory: "Главный склад\PRH\0012.prh"
  int line = 0;  // from 1; 0 means the file or folder as a whole
  QString text;  // a sentence for a person, without the place
  Repair repair = Repair::kNone;

  bool operator==(const Finding&) const = default;
};

// One goods in one warehouse. Opening balances and corrections by hand leave no document, so that
// what is on hand beyond the documents is taken for them, and what is missing for a difference.
struct StockComparison {
  QString warehouse;
  QString name;
  double receipts = 0;
  double shipments = 0;
  double transfers = 0;  // brought in less taken away
  double on_hand = 0;    // as the ledger has it
  double rounded = 0;    // what the ledger may have lost to rounding, 0.005 an issue

  double Opening() const;     // 0 or more
  double Difference() const;  // 0 or less

 private:
  double Unexplained() const;
};

// Nobody reads more; a foreign file could give one for each of its lines.
inline constexpr qsizetype kMostFindings = 5000;

// Findings on their way: however many come, no more lie in memory than a few times kMostFindings.
class FindingList {
 public:
  void Add(Finding finding) {
    findings_.push_back(std::move(finding));
    if (findings_.size() > 4 * static_cast<size_t>(kMostFindings)) Order();
  }
  // The first kMostFindings by file, then by line, then as they came; the rest is counted only.
  std::vector<Finding> Take();
  qsizetype Untold() const { return untold_; }  // after Take

 private:
  void Order();

  std::vector<Finding> findings_;
  qsizetype untold_ = 0;
};

struct CheckResult {
  std::vector<Finding> findings;  // by file, at most kMostFindings
  qsizetype untold = 0;           // findings beyond that number
  std::vector<StockComparison> stock;
  int files = 0;      // read, documents among them
  int documents = 0;  // receipts, shipments and transfers
};

}  // namespace kladez
