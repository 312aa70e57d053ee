#include "formats/tables/TableTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// The text of a cell as a spreadsheet with a decimal comma reads it.
QString LocalText(const TableColumn& column, const QString& text) {
  QString local = text;
  if (NumberOfCell(column.kind, text)) {
    local.remove(u' ').replace(u'.', u',');
  } else if (DateOfCell(column.kind, text)) {
    local = local.trimmed();
  }
  return local;
}

QString OneLine(QString text) {
  for (QChar& c : text) {
    if (c == u'\t' || c == u'\n' || c == u'\r') c = u' ';
  }
  return text;
}

QString Quoted(const QString& text) {
  const bool plain = !text.contains(u';') && !text.contains(u'"') && !text.contains(u'\n') &&
                     !text.contains(u'\r') && !text.contains(u'\t') && !text.endsWith(u' ');
  if (plain) return text;
  return u'"' + QString(text).replace(u"\""_s, u"\"\""_s) + u'"';
}

// One row after the other, the titles and totals among them.
template <typename Cell>
QStringList CellsOf(const Table& table, const TableRow& row, Cell&& cell) {
  QStringList cells;
  cells.reserve(static_cast<qsizetype>(table.columns.size()));
  for (size_t i = 0; i < table.columns.size(); ++i) {
    cells << cell(LocalText(table.columns[i], CellOf(row, i)));
  }
  return cells;
}

QStringList TitlesOf(const Table& table) {
  QStringList titles;
  for (const TableColumn& column : table.columns) titles << column.title;
  return titles;
}

QStringList KeysOf(const Table& table) {
  QStringList keys;
  for (const TableColumn& column : table.columns) {
    QString key = column.title;
    for (int i = 2; keys.contains(key); ++i) key = column.title + u' ' + QString::number(i);
    keys << key;
  }
  return keys;
}

QJsonValue ValueOf(const TableColumn& column, const QString& text) {
  if (const auto number = NumberOfCell(column.kind, text)) return *number;
  if (const auto date = DateOfCell(column.kind, text)) return date->toString(Qt::ISODate);
  return text;
}

QJsonObject ObjectOf(const Table& table, const QStringList& keys, const TableRow& row) {
  QJsonObject object;
  for (size_t i = 0; i < table.columns.size(); ++i) {
    object[keys[static_cast<qsizetype>(i)]] = ValueOf(table.columns[i], CellOf(row, i));
  }
  return object;
}

}  // namespace

QString TableAsTabs(const Table& table, bool headings) {
  QStringList lines;
  if (headings) lines << OneLine(TitlesOf(table).join(u'\f')).replace(u'\f', u'\t');
  for (const TableRow& row : table.rows) {
    lines << CellsOf(table, row, [](const QString& text) { return OneLine(text); }).join(u'\t');
  }
  return lines.join(u'\n');
}

QByteArray TableAsCsv(const Table& table) {
  QByteArray bytes("\xEF\xBB\xBF");
  const auto add = [&](const QStringList& cells) {
    bytes += cells.join(u';').toUtf8();
    bytes += "\r\n";
  };
  QStringList titles;
  for (const QString& title : TitlesOf(table)) titles << Quoted(title);
  add(titles);
  for (const TableRow& row : table.rows) add(CellsOf(table, row, Quoted));
  if (table.HasTotals()) add(CellsOf(table, TotalRow(table), Quoted));
  return bytes;
}

QByteArray TableAsJson(const Table& table) {
  const QStringList keys = KeysOf(table);
  const bool groups = table.HasGroups();
  QString group;
  QJsonArray rows;
  for (const TableRow& row : table.rows) {
    if (row.is_group) {
      group = CellOf(row, 0).trimmed();
      continue;
    }
    QJsonObject object = ObjectOf(table, keys, row);
    if (groups) object[u"group"_s] = group;
    rows << object;
  }
  QJsonObject whole{{u"title"_s, table.title},
                    {u"note"_s, table.note},
                    {u"columns"_s, QJsonArray::fromStringList(keys)},
                    {u"rows"_s, rows}};
  if (table.HasTotals()) {
    QJsonObject totals;
    for (size_t i = 0; i < table.columns.size(); ++i) {
      if (table.columns[i].total) totals[keys[static_cast<qsizetype>(i)]] = TotalOf(table, i);
    }
    whole[u"totals"_s] = totals;
  }
  return QJsonDocument(whole).toJson();
}

}  // namespace kladez
