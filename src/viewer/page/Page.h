// What a print-out says, free of the oddities of its markup: paragraphs and tables in the order in
// which they are read. Lengths are pixels of 96 to the inch, font sizes are points. A value type
// without any widget: everything that shows or prints a page starts from here.
#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <memory>
#include <variant>
#include <vector>

namespace kladez::viewer {

struct TextStyle {
  QString family;
  double points = 12;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  QString color;  // as written, "" is black
  QString link;   // the page beside this one that a click opens, "" for none

  bool operator==(const TextStyle&) const = default;
};

// A stretch of one style. Lines of one paragraph are parted by QChar::LineSeparator; a picture is
// a run of its own with its name and no text.
struct Run {
  int style = 0;  // index in Page::styles
  QString text;
  QString picture;
};

struct Paragraph {
  Qt::Alignment align = Qt::AlignLeft;
  double space_before = 0;
  bool keep_lines = false;  // preformatted: lines are never wrapped
  bool listed = false;      // an item of a list, with its bullet before the other lines
  std::vector<Run> runs;

  // The letters of all runs, one behind the other; a picture counts as one.
  QString Text() const;
};

struct Table;
using Block = std::variant<Paragraph, std::unique_ptr<Table>>;

// A width as markup gives it: percent, pixels, or not told.
struct Width {
  enum class Kind { kNone, kPercent, kPixels };
  Kind kind = Kind::kNone;
  double value = 0;
};

struct Cell {
  int column = 0;  // where it stands in the grid, spans of the rows above counted in
  int column_span = 1;
  int row_span = 1;
  Width width;
  Qt::Alignment vertical = Qt::AlignVCenter;
  std::vector<Block> blocks;  // never empty

  // Of all its paragraphs, one behind the other.
  QString Text() const;
  bool IsBlank() const;  // nothing but white space
};

struct Row {
  std::vector<Cell> cells;
  bool heading = false;  // repeated on each sheet
  bool group = false;    // names the rows under it and stays with the first of them
};

struct Table {
  int border = 0;
  int padding = 1;
  int spacing = 2;
  bool collapse = false;
  Qt::Alignment align = Qt::AlignLeft;
  Width width;
  int columns = 0;
  double space_before = 0;
  bool follows_table = false;  // nothing stands between it and the table before
  bool shares_line = false;    // and the lower line of that is its upper one
  std::vector<Row> rows;       // none of them is empty
};

struct Page {
  QString title;
  std::vector<TextStyle> styles;
  std::vector<Block> blocks;
  // The blocks from `closing` to `signature` are the totals under the last list, those from
  // `signature` to `signature_end` the signature block; all are the number of blocks without one.
  size_t closing = 0;
  size_t signature = 0;
  size_t signature_end = 0;
  std::map<QString, QImage> pictures;    // by the name that the page gives
  std::map<QString, QSizeF> told_sizes;  // of those whose size the page gives, pixels
  double widest_picture = 0;             // a wider one is drawn smaller; 0 sets no limit

  // How large a picture is drawn.
  QSizeF PictureSize(const QString& name) const;

  // The rows of all tables that stand directly on the page.
  int RowCount() const;
};

}  // namespace kladez::viewer
