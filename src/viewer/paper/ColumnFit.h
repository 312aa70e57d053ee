// Widths of the columns of tables that are laid out one by one and have to look like one: the
// tables of a price list's groups, and the parts into which a long table is cut.
#pragma once

#include <QTextTableFormat>
#include <vector>

#include "viewer/page/Page.h"

namespace kladez::viewer {

// Letters of a bordered table never touch the line beside them.
inline constexpr int kLeastPadding = 2;

// The shares of `columns` columns in percent as the page wishes, made to sum to 100 when every
// column has one. An entry of 0 has no wish. Widths in pixels give no share.
std::vector<double> WishedShares(const Table& table);

// Divides `width` among columns: each gets its share of it, but none less than its minimum; what
// that takes is taken from the others in proportion. When the minima do not fit, they are the
// answer, and the sum is more than `width`.
std::vector<double> DivideWidth(const std::vector<double>& shares,
                                const std::vector<double>& minima, double width);

// The widest word of a paragraph, or the widest line of a preformatted one, in pixels at 96 dpi.
double NarrowestWidth(const Page& page, const Paragraph& paragraph);

// Raises `minima` to the widest word of each column of `table`, in pixels at 96 dpi.
void RaiseMinima(const Page& page, const Table& table, std::vector<double>& minima);

// Tables that follow each other directly.
class TableStack {
 public:
  // Takes another table of the stack into account.
  void Add(const Page& page, const Table& table);

  // The narrowest width, in pixels at 96 dpi, at which words are whole and no column is left with
  // a sliver of the share that the page wishes for it.
  double ReadableWidth() const;

  // Gives the columns of each of its tables the same widths, when the page has a wish for each: the
  // format of one of `columns` columns, on a page of `width` dots, `scale` to a pixel at 96 dpi.
  void Fit(int columns, double width, double scale, QTextTableFormat& format) const;

 private:
  bool HasAllShares() const;

  int columns_ = 0;  // of the widest
  std::vector<double> shares_;
  std::vector<double> minima_;
};

}  // namespace kladez::viewer
