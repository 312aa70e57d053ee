#include "ui/controls/ListTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <numeric>

#include "formats/tables/TableTexts.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/TableSaving.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString TitleOfScreen(const QWidget* list) {
  for (const QWidget* screen = list; screen != nullptr; screen = screen->parentWidget()) {
    if (!screen->windowTitle().isEmpty()) return screen->windowTitle();
  }
  return {};
}

void Copy(const Table& table, bool headings) {
  if (!table.rows.empty()) QGuiApplication::clipboard()->setText(TableAsTabs(table, headings));
}

}  // namespace

Table TableOf(const RecordList& list, const std::vector<int>& rows) {
  Table table;
  const RecordModel* records = list.Records();
  if (records == nullptr) return table;
  table.title = TitleOfScreen(&list);
  std::vector<int> shown;
  for (int i = 0; i < records->columnCount(); ++i) {
    if (!list.isColumnHidden(i)) shown.push_back(i);
  }
  table.rows.reserve(rows.size());
  for (const int row : rows) {
    TableRow copy{.cells = {}, .is_group = records->IsGroup(row)};
    copy.cells.reserve(static_cast<qsizetype>(shown.size()));
    for (const int column : shown) copy.cells << records->Text(row, column);
    table.rows.push_back(std::move(copy));
  }
  for (const int i : shown) {
    const Column& column = records->Columns()[static_cast<size_t>(i)];
    const CellKind kind = GuessKind(table.rows, table.columns.size(), column.number);
    table.columns.push_back({column.title, kind, column.total});
  }
  return table;
}

Table TableOf(const RecordList& list) {
  std::vector<int> rows(list.Records() == nullptr ? 0 : list.Records()->rowCount());
  std::iota(rows.begin(), rows.end(), 0);
  return TableOf(list, rows);
}

void CopySelectedRows(const RecordList& list) {
  const std::vector<int> rows = list.SelectedRows();
  Copy(TableOf(list, rows),
       rows.size() > 1 && static_cast<int>(rows.size()) == list.Records()->rowCount());
}

void CopyAllRows(const RecordList& list) { Copy(TableOf(list), true); }

void SaveListAsTable(RecordList* list) { SaveTable(list, TableOf(*list)); }

bool TakesTableKey(RecordList* list, const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  const bool all = modifiers == (Qt::ControlModifier | Qt::ShiftModifier);
  if (event.matches(QKeySequence::Copy)) {
    CopySelectedRows(*list);
  } else if (event.key() == Qt::Key_C && all) {
    CopyAllRows(*list);
  } else if (event.key() == Qt::Key_T && modifiers == Qt::ControlModifier) {
    SaveListAsTable(list);
  } else {
    return false;
  }
  return true;
}

void AddTableCommands(QMenu* menu, RecordList* list) {
  if (!menu->isEmpty()) menu->addSeparator();
  const auto add = [&](const QString& name, const QString& caption, auto&& command) {
    QAction* action = menu->addAction(caption, list, command);
    action->setObjectName(name);
    return action;
  };
  add(u"copy"_s, u"&Копировать\tCtrl+C"_s, [list] {
    CopySelectedRows(*list);
  })->setEnabled(!list->SelectedRows().empty());
  const bool any = list->model() != nullptr && list->model()->rowCount() > 0;
  add(u"copy_all"_s, u"Копировать &всё с заголовками\tCtrl+Shift+C"_s, [list] {
    CopyAllRows(*list);
  })->setEnabled(any);
  add(u"save_table"_s, u"Сохранить как &таблицу…\tCtrl+T"_s, [list] {
    SaveListAsTable(list);
  })->setEnabled(any);
}

}  // namespace kladez
