#include "workbook/Workbook.h"

#include <xlsxwriter.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <system_error>

#include "formats/tables/Table.h"
#include "system/PathNames.h"
#include "system/Process.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kLongestCell = 32767;
constexpr qsizetype kLongestSheetName = 31;
constexpr lxw_color_t kGroupColor = 0x0000FF;  // as in the lists of the program
constexpr lxw_color_t kHeadColor = 0xE6EEF1;
constexpr double kNarrowest = 8;  // characters
constexpr double kWidest = 60;

lxw_row_t RowsAbove(const Table& table) { return table.note.isEmpty() ? 2 : 3; }

QByteArray SheetName(const QString& title) {
  QString name;
  for (const QChar c : title) name += QStringView(u"[]:*?/\\'").contains(c) ? u' ' : c;
  name = name.simplified().left(kLongestSheetName).trimmed();
  return (name.isEmpty() ? u"Таблица"_s : name).toUtf8();
}

// The name of a group without the blank that marks it in the program's own lists.
QString ShownText(const TableRow& row, size_t column) {
  const QString text = CellOf(row, column);
  return row.is_group && column == 0 ? text.trimmed() : text;
}

// As many characters as the widest cell has, within what can be read.
double WidthOf(const Table& table, size_t column) {
  qsizetype widest = table.columns[column].title.size();
  for (const TableRow& row : table.rows) {
    if (!row.is_group) widest = std::max(widest, CellOf(row, column).size());
  }
  if (table.columns[column].total) {
    widest = std::max(widest, CellOf(TotalRow(table), column).size());
  }
  return std::clamp(static_cast<double>(widest) + 2, kNarrowest, kWidest);
}

class Sheet {
 public:
  Sheet(lxw_workbook* book, const Table& table)
      : book_(book),
        sheet_(workbook_add_worksheet(book, SheetName(table.title).constData())),
        table_(table) {}

  void Write() {
    SetUp();
    WriteHead();
    for (const TableRow& row : table_.rows) WriteRow(row);
    if (table_.HasTotals()) WriteTotals();
  }

 private:
  enum Style { kPlain, kGroup, kTotal, kStyles };

  lxw_format* NewFormat(CellKind kind, Style style) {
    lxw_format* format = workbook_add_format(book_);
    if (kind == CellKind::kMoney) format_set_num_format(format, "#,##0.00");
    if (kind == CellKind::kDate) {
      format_set_num_format(format, "dd.mm.yyyy");
      format_set_align(format, LXW_ALIGN_LEFT);
    }
    if (style != kPlain) format_set_bold(format);
    if (style == kGroup) format_set_font_color(format, kGroupColor);
    if (style == kTotal) format_set_top(format, LXW_BORDER_THIN);
    return format;
  }

  void SetUp() {
    for (size_t i = 0; i < table_.columns.size(); ++i) {
      const auto column = static_cast<lxw_col_t>(i);
      worksheet_set_column(sheet_, column, column, WidthOf(table_, i), nullptr);
      for (const Style style : {kPlain, kGroup, kTotal}) {
        formats_.push_back(NewFormat(table_.columns[i].kind, style));
      }
    }
    const lxw_row_t head = RowsAbove(table_);
    worksheet_freeze_panes(sheet_, head + 1, 0);
    worksheet_repeat_rows(sheet_, head, head);
    worksheet_set_paper(sheet_, 9);  // A4
    worksheet_fit_to_pages(sheet_, 1, 0);
    // The heading of a group stands above its rows.
    worksheet_outline_settings(sheet_, LXW_TRUE, LXW_FALSE, LXW_FALSE, LXW_FALSE);
  }

  void WriteHead() {
    lxw_format* title = workbook_add_format(book_);
    format_set_bold(title);
    format_set_font_size(title, 14);
    Text(0, 0, table_.title, title);
    if (!table_.note.isEmpty()) Text(1, 0, table_.note, nullptr);
    row_ = RowsAbove(table_);
    for (size_t i = 0; i < table_.columns.size(); ++i) {
      lxw_format* head = workbook_add_format(book_);
      format_set_bold(head);
      format_set_bg_color(head, kHeadColor);
      format_set_bottom(head, LXW_BORDER_THIN);
      format_set_text_wrap(head);
      const CellKind kind = table_.columns[i].kind;
      const bool number = kind == CellKind::kNumber || kind == CellKind::kMoney;
      format_set_align(head, number ? LXW_ALIGN_RIGHT : LXW_ALIGN_LEFT);
      Text(row_, static_cast<lxw_col_t>(i), table_.columns[i].title, head);
    }
    ++row_;
  }

  void WriteRow(const TableRow& row) {
    below_group_ |= row.is_group;
    if (below_group_ && !row.is_group) {
      lxw_row_col_options options = {.hidden = LXW_FALSE, .level = 1, .collapsed = LXW_FALSE};
      worksheet_set_row_opt(sheet_, row_, LXW_DEF_ROW_HEIGHT, nullptr, &options);
    }
    for (size_t i = 0; i < table_.columns.size(); ++i) {
      const CellKind kind = table_.columns[i].kind;
      const QString text = ShownText(row, i);
      lxw_format* format = FormatOf(i, row.is_group ? kGroup : kPlain);
      const auto column = static_cast<lxw_col_t>(i);
      if (text.isEmpty()) continue;
      if (const auto number = NumberOfCell(kind, text)) {
        worksheet_write_number(sheet_, row_, column, *number, format);
      } else if (const auto date = DateOfCell(kind, text); date && date->year() >= 1900) {
        lxw_datetime day = {date->year(), date->month(), date->day(), 0, 0, 0};
        worksheet_write_datetime(sheet_, row_, column, &day, format);
      } else {
        Text(row_, column, text, format);
      }
    }
    ++row_;
  }

  // The formula's value stands beside it: not every program that shows such files reckons.
  void WriteTotals() {
    const TableRow totals = TotalRow(table_);
    const lxw_row_t first = RowsAbove(table_) + 1;
    for (size_t i = 0; i < table_.columns.size(); ++i) {
      const auto column = static_cast<lxw_col_t>(i);
      lxw_format* format = FormatOf(i, kTotal);
      if (!table_.columns[i].total) {
        Text(row_, column, CellOf(totals, i), format);
      } else if (row_ == first) {
        worksheet_write_number(sheet_, row_, column, 0, format);
      } else {
        char range[LXW_MAX_CELL_RANGE_LENGTH];
        lxw_rowcol_to_range(range, first, column, row_ - 1, column);
        const QByteArray formula = QByteArray("=SUM(").append(range).append(')');
        worksheet_write_formula_num(sheet_, row_, column, formula, format, TotalOf(table_, i));
      }
    }
  }

  lxw_format* FormatOf(size_t column, Style style) {
    return formats_[column * kStyles + static_cast<size_t>(style)];
  }

  void Text(lxw_row_t row, lxw_col_t column, const QString& text, lxw_format* format) {
    if (text.isEmpty()) {
      worksheet_write_blank(sheet_, row, column, format);
    } else {
      worksheet_write_string(sheet_, row, column, text.left(kLongestCell).toUtf8().constData(),
                             format);
    }
  }

  lxw_workbook* book_;
  lxw_worksheet* sheet_;
  const Table& table_;
  std::vector<lxw_format*> formats_;
  lxw_row_t row_ = 0;
  bool below_group_ = false;
};

[[noreturn]] void ThrowUnwritten() {
  throw std::system_error(syscalls::LastError(), std::generic_category(),
                          "Не удалось составить таблицу");
}

}  // namespace

bool FitsWorkbook(const Table& table) {
  return table.columns.size() <= LXW_COL_MAX &&
         table.rows.size() + RowsAbove(table) + 2 <= LXW_ROW_MAX;
}

QByteArray WorkbookOf(const Table& table) {
  const QTemporaryDir directory;
  syscalls::ForgetErrors();
  if (!directory.isValid()) ThrowUnwritten();
  const QString path = directory.filePath(u"table.xlsx"_s);
  QByteArray passing = EncodePath(directory.path());
  lxw_workbook_options options = {
      .constant_memory = LXW_TRUE, .tmpdir = passing.data(), .use_zip64 = LXW_FALSE};
  lxw_workbook* book = workbook_new_opt(EncodePath(path).constData(), &options);
  if (book == nullptr) ThrowUnwritten();
  Sheet(book, table).Write();
  if (workbook_close(book) != LXW_NO_ERROR) ThrowUnwritten();
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) ThrowUnwritten();
  return file.readAll();
}

}  // namespace kladez
