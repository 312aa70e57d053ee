// The totals of a paper: what it is before the discount, the taxes in it, and the amount in words.
// They are worked out by a load and may be typed over.
#pragma once

#include <functional>
#include <vector>

#include "books/printing/DocumentTotals.h"

class QCheckBox;
class QGridLayout;

namespace kladez {

class PrintDialog;
class TextLine;
struct TotalField;

class TotalsBlock {
 public:
  enum class Taxes { kNone, kShown };
  TotalsBlock(PrintDialog& dialog, Taxes taxes);

  // Captions or ticks, fields and question marks: the figures, and the words.
  QGridLayout* NewFiguresGrid() const;
  QGridLayout* NewWordsGrid() const;

  // Works the totals out from those on the screen; a failure on the way leaves what was worked out.
  void Fill(const std::function<void(TotalTexts&)>& work);
  // The texts and ticks, into what is printed.
  void ReadInto(PaperSums& sums) const;

  TextLine* Words() const { return fields_.back().text; }

 private:
  struct Field {
    const TotalField* told;
    QCheckBox* tick;  // of a tax
    TextLine* text;
  };
  QGridLayout* NewGrid(size_t first, size_t end) const;

  PrintDialog& dialog_;
  std::vector<Field> fields_;  // the words last
};

}  // namespace kladez
