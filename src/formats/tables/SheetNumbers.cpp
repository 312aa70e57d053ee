#include "formats/tables/SheetNumbers.h"

#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Without blanks of any width, what groups by apostrophes, and the name of the currency behind.
QString Bare(const QString& cell) {
  QString bare;
  for (const QChar c : cell) {
    if (c.isSpace() || c == u'\'' || c == u'\u2019') continue;
    bare += c == u'\u2212' ? u'-' : c;
  }
  for (const QStringView currency : {u"руб.", u"руб", u"р.", u"р", u"₽", u"RUB", u"RUR"}) {
    if (!bare.endsWith(currency, Qt::CaseInsensitive)) continue;
    bare.chop(currency.size());
    break;
  }
  return bare;
}

}  // namespace

SheetNumbers::SheetNumbers(const Sheet& sheet, int column) {
  for (const SheetRow& row : sheet.rows) {
    const QString bare = Bare(row.cells.value(column));
    const qsizetype point = bare.lastIndexOf(u'.');
    const qsizetype comma = bare.lastIndexOf(u',');
    if (point < 0 || comma < 0) continue;
    QString number = bare;
    number.remove(point < comma ? u'.' : u',').replace(u',', u'.');
    if (!ParseStrict(number)) continue;
    grouping_ = point < comma ? u'.' : u',';
    return;
  }
}

std::optional<double> SheetNumbers::Read(const QString& cell) const {
  QString number = Bare(cell);
  if (!grouping_.isNull()) number.remove(grouping_);
  // More than one of a kind can only group.
  for (const QChar mark : {u',', u'.'}) {
    if (number.count(mark) > 1) number.remove(mark);
  }
  return ParseStrict(number.replace(u',', u'.'));
}

}  // namespace kladez
