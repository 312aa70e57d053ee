#include "viewer/paper/ColumnFit.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

#include "viewer/page/Fonts.h"

namespace kladez::viewer {

namespace {

// No letter is wider than this share of the font's height in pixels.
constexpr double kWidestLetter = 1.25;
// What rounding at another resolution may add to the width of a word.
constexpr double kSlack = 1.02;
// What follows a hyphen stays with it when it is as short as in "Кол-во", the blank after it
// counted.
constexpr qsizetype kShortTail = 3;
// A column that gets less than this part of its share is too narrow to be read with ease.
constexpr double kLeastOfShare = 0.7;
// A part of a dot that keeps a whole number of them whole.
constexpr double kRounding = 0.01;

// Finds the widest words of cells, in a pass over many cells that measures few of their words.
class WordMeasure {
 public:
  explicit WordMeasure(const Page& page) : page_(page) {}

  // The width of the widest word, or `known` if that is more.
  double Widest(const Cell& cell, double known) {
    for (const Block& block : cell.blocks)
      if (const auto* paragraph = std::get_if<Paragraph>(&block)) known = Widest(*paragraph, known);
    return known;
  }

  double Widest(const Paragraph& paragraph, double known) {
    double line = 0;
    for (const Run& run : paragraph.runs)
      if (!run.picture.isEmpty())
        known = std::max<double>(known, page_.PictureSize(run.picture).width());
      else if (!paragraph.keep_lines)
        known = WidestWord(run, known);
      else
        line = WidestLine(run, line, &known);
    return known;
  }

 private:
  double WidestWord(const Run& run, double known) {
    const QFontMetricsF& metrics = Metrics(run.style);
    const double letter =
        page_.styles[static_cast<size_t>(run.style)].points * kPixelsPerPoint * kWidestLetter;
    for (const QStringView word : QStringView(run.text).split(u' ')) {
      if (static_cast<double>(word.size()) * letter <= known) continue;
      QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word.data(), word.size());
      qsizetype begin = 0;
      for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        if (word.size() - end <= kShortTail && end < word.size()) continue;
        const QString part = word.mid(begin, end - begin).toString();
        known = std::max(known, metrics.horizontalAdvance(part) * kSlack);
        begin = end;
      }
    }
    return known;
  }

  // Adds the run to a line that is `line` wide before it; gives how wide its last line is.
  double WidestLine(const Run& run, double line, double* known) {
    const QStringList parts = run.text.split(QChar(QChar::LineSeparator));
    for (qsizetype i = 0; i < parts.size(); ++i) {
      line = (i == 0 ? line : 0) + Metrics(run.style).horizontalAdvance(parts[i]) * kSlack;
      *known = std::max(*known, line);
    }
    return line;
  }

  const QFontMetricsF& Metrics(int style) {
    auto found = metrics_.find(style);
    if (found == metrics_.end()) {
      const QFont font = ScreenFont(page_.styles[static_cast<size_t>(style)]);
      found = metrics_.emplace(style, QFontMetricsF(font)).first;
    }
    return found->second;
  }

  const Page& page_;
  std::map<int, QFontMetricsF> metrics_;
};

}  // namespace

std::vector<double> WishedShares(const Table& table) {
  std::vector<double> shares(static_cast<size_t>(table.columns), 0);
  for (const Row& row : table.rows) {
    for (const Cell& cell : row.cells) {
      double& share = shares[static_cast<size_t>(cell.column)];
      if (cell.column_span == 1 && cell.width.kind == Width::Kind::kPercent && share == 0)
        share = cell.width.value;
    }
    if (std::find(shares.begin(), shares.end(), 0) == shares.end()) break;
  }
  const bool all = std::find(shares.begin(), shares.end(), 0) == shares.end();
  const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
  if (all || sum > 100)
    for (double& share : shares) share *= 100 / sum;
  return shares;
}

std::vector<double> DivideWidth(const std::vector<double>& shares,
                                const std::vector<double>& minima, double width) {
  std::vector<double> widths(shares.size(), 0);
  std::vector<bool> at_minimum(shares.size(), false);
  for (bool changed = true; changed;) {
    double rest = width;
    double rest_shares = 0;
    for (size_t i = 0; i < shares.size(); ++i)
      (at_minimum[i] ? rest : rest_shares) += at_minimum[i] ? -minima[i] : shares[i];
    changed = false;
    for (size_t i = 0; i < shares.size(); ++i) {
      widths[i] = at_minimum[i] ? minima[i] : std::max(0.0, rest) * shares[i] / rest_shares;
      if (!at_minimum[i] && widths[i] < minima[i]) at_minimum[i] = changed = true;
    }
  }
  return widths;
}

double NarrowestWidth(const Page& page, const Paragraph& paragraph) {
  return WordMeasure(page).Widest(paragraph, 0);
}

void RaiseMinima(const Page& page, const Table& table, std::vector<double>& minima) {
  minima.resize(static_cast<size_t>(table.columns), 0);
  const double frame = 2 * (table.border > 0 ? std::max(table.padding, kLeastPadding) + table.border
                                             : table.padding);
  WordMeasure measure(page);
  for (const Row& row : table.rows) {
    for (const Cell& cell : row.cells) {
      double& minimum = minima[static_cast<size_t>(cell.column)];
      if (cell.column_span == 1) minimum = measure.Widest(cell, minimum - frame) + frame;
    }
  }
}

void TableStack::Add(const Page& page, const Table& table) {
  if (table.columns > columns_) {
    columns_ = table.columns;
    shares_ = WishedShares(table);
    minima_.clear();
  }
  if (table.columns == columns_) RaiseMinima(page, table, minima_);
}

bool TableStack::HasAllShares() const {
  return std::find(shares_.begin(), shares_.end(), 0) == shares_.end();
}

double TableStack::ReadableWidth() const {
  double width = std::accumulate(minima_.begin(), minima_.end(), 0.0);
  for (double needed = width; HasAllShares(); width = needed) {
    needed = 0;
    for (size_t i = 0; i < shares_.size(); ++i)
      needed += std::max(minima_[i], kLeastOfShare * width * shares_[i] / 100);
    if (needed <= width + 0.1) break;
  }
  return width;
}

void TableStack::Fit(int columns, double width, double scale, QTextTableFormat& format) const {
  if (!HasAllShares()) return;
  std::vector<double> widths = DivideWidth(shares_, minima_, width / scale);
  // The toolkit cuts a column down to whole dots; what is left over goes to the widest.
  double rest = 0;
  for (double& column : widths) {
    const double dots = std::floor(column * scale);
    rest += column * scale - dots;
    column = dots;
  }
  *std::max_element(widths.begin(), widths.end()) += std::floor(rest + kRounding);
  const double sum = std::accumulate(widths.begin(), widths.end(), 0.0) + rest - std::floor(rest);
  format.setWidth(sum > width + 1 ? QTextLength(QTextLength::FixedLength, sum / scale)
                                  : QTextLength(QTextLength::PercentageLength, 100));
  if (columns != columns_) return;
  QList<QTextLength> lengths;
  for (const double column : widths)
    lengths.append(QTextLength(QTextLength::PercentageLength, (column + kRounding) / sum * 100));
  format.setColumnWidthConstraints(lengths);
}

}  // namespace kladez::viewer
