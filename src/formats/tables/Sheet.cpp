#include "formats/tables/Sheet.h"

#include <QStringDecoder>
#include <algorithm>
#include <map>
#include <optional>

#include "formats/TextLines.h"

namespace kladez {
namespace {

// Walks the rows of a text. A line break inside quotation marks belongs to the cell.
class SheetReader {
 public:
  SheetReader(QStringView text, QChar separator) : rest_(text), separator_(separator) {}

  bool AtEnd() const { return rest_.isEmpty(); }
  // The cells of the next row, at most so many as may be; the others are read and left out.
  QStringList Next() {
    QStringList cells;
    for (bool more = true; more;) {
      const QString cell = NextCell();
      if (cells.size() < kMostSheetColumns) cells.append(cell);
      more = rest_.startsWith(separator_);
      if (more) rest_ = rest_.sliced(1);
    }
    if (rest_.startsWith(u"\r\n")) rest_ = rest_.sliced(1);
    if (!rest_.isEmpty()) rest_ = rest_.sliced(1);
    return cells;
  }

 private:
  bool EndsCell(QChar c) const { return c == separator_ || c == u'\n' || c == u'\r'; }

  QString NextCell() {
    if (rest_.startsWith(u'"')) {
      if (const auto quoted = QuotedCell()) return *quoted;
    }
    const auto* end =
        std::find_if(rest_.begin(), rest_.end(), [this](QChar c) { return EndsCell(c); });
    const QString cell = rest_.first(end - rest_.begin()).toString();
    rest_ = rest_.sliced(cell.size());
    return cell;
  }

  // Nothing where the marks are a part of the text, as in «"Ассам" чай» or in 3/4" without end.
  std::optional<QString> QuotedCell() {
    QString cell;
    for (qsizetype i = 1; i < rest_.size(); ++i) {
      if (rest_[i] != u'"') {
        cell += rest_[i];
        continue;
      }
      if (i + 1 < rest_.size() && rest_[i + 1] == u'"') {
        cell += rest_[++i];
        continue;
      }
      if (i + 1 < rest_.size() && !EndsCell(rest_[i + 1])) return std::nullopt;
      rest_ = rest_.sliced(i + 1);
      return cell;
    }
    return std::nullopt;
  }

  QStringView rest_;
  QChar separator_;
};

// How many of the first rows have the number of columns that most of them have; 0 for one column.
int RowsAlike(QStringView text, QChar separator) {
  constexpr int kRowsToAsk = 200;
  SheetReader reader(text, separator);
  std::map<qsizetype, int> rows_with;
  for (int row = 0; row < kRowsToAsk && !reader.AtEnd(); ++row) ++rows_with[reader.Next().size()];
  rows_with.erase(1);
  int most = 0;
  for (const auto& [columns, rows] : rows_with) most = std::max(most, rows);
  return most;
}

QChar SeparatorOf(QStringView text) {
  QChar best = u'\t';
  int most = 0;
  for (const QChar separator : {u'\t', u';', u','}) {
    const int alike = RowsAlike(text, separator);
    if (alike <= most) continue;
    best = separator;
    most = alike;
  }
  return best;
}

// UTF-16 without its mark: of Russian and Latin letters every second byte is one of three.
std::optional<QStringConverter::Encoding> Utf16Of(QByteArrayView bytes) {
  constexpr qsizetype kBytesToAsk = 1024;
  const qsizetype pairs = std::min(bytes.size(), kBytesToAsk) / 2;
  int low_first = 0;
  int high_first = 0;
  const auto is_high = [](char c) { return c == 0 || c == 4 || c == 0x20; };
  for (qsizetype i = 0; i < pairs; ++i) {
    high_first += is_high(bytes[2 * i]) ? 1 : 0;
    low_first += is_high(bytes[2 * i + 1]) ? 1 : 0;
  }
  if (pairs == 0 || !bytes.first(2 * pairs).contains(char(0))) return std::nullopt;
  if (low_first * 10 >= pairs * 9) return QStringConverter::Utf16LE;
  if (high_first * 10 >= pairs * 9) return QStringConverter::Utf16BE;
  return std::nullopt;
}

}  // namespace

QString DecodeSheet(QByteArrayView bytes) {
  auto encoding = QStringConverter::encodingForData(bytes);
  if (!encoding) encoding = Utf16Of(bytes);
  if (encoding && *encoding != QStringConverter::Utf8) {
    return QStringDecoder(*encoding).decode(bytes);
  }
  QStringDecoder utf8(QStringConverter::Utf8);
  const QString text = utf8.decode(bytes);
  return encoding || !utf8.hasError() ? text : DecodeText(bytes);
}

Sheet ReadSheet(const QString& text) {
  QStringView rest(text);
  Sheet sheet;
  int number = 0;
  // Spreadsheets write and read such a first line.
  std::optional<QChar> told;
  if (rest.size() > 4 && rest.startsWith(u"sep=") && QStringView(u";,\t").contains(rest[4])) {
    told = rest[4];
    const qsizetype end = rest.indexOf(u'\n');
    rest = end < 0 ? QStringView() : rest.sliced(end + 1);
    ++number;
  }
  SheetReader reader(rest, told.value_or(SeparatorOf(rest)));
  qsizetype cells_left = kMostSheetCells;
  while (!reader.AtEnd()) {
    SheetRow row{++number, reader.Next()};
    const bool empty = std::all_of(row.cells.begin(), row.cells.end(),
                                   [](const QString& cell) { return cell.trimmed().isEmpty(); });
    if (empty) continue;
    cells_left -= row.cells.size();
    sheet.is_cut = cells_left < 0;
    if (sheet.is_cut) break;
    sheet.columns = std::max(sheet.columns, static_cast<int>(row.cells.size()));
    sheet.rows.push_back(std::move(row));
  }
  return sheet;
}

}  // namespace kladez
