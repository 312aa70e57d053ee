// What stands above "Печать" and is in sight whatever is folded: what rate, percentage and discount
// make of the sum, how far the paper is from the waybill, and in red what needs a second look.
#pragma once

#include <QStringList>
#include <functional>

#include "books/printing/PaperNote.h"

class QLabel;
class QLayout;
class QWidget;

namespace kladez {

class ParametersBlock;
class PrintDialog;

class NoteBlock {
 public:
  NoteBlock(PrintDialog& dialog, ParametersBlock& parameters);

  QLayout* NewRows() const;
  // Beside the words: that they are cut.
  QLabel* WordsNote() const { return words_cut_; }

  // `in_roubles`: a rate is told in red as long as it is the one that the paper opened with.
  void Show(const PaperNote& note, bool in_roubles);
  // Why the code to pay by is not on the paper; nothing where there is no fault.
  void ShowCodeFaults(const QStringList& faults);
  // While the totals can't be worked out.
  void Clear();

 private:
  QWidget* rate_row_;
  QLabel* rate_;
  QLabel* effect_;
  QLabel* difference_;
  QLabel* words_cut_;
  QLabel* no_taxes_;
  QLabel* code_faults_;
  ParametersBlock& parameters_;
};

}  // namespace kladez
