#include "viewer/page/PageName.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// Number and party of a document stand above its goods.
constexpr qsizetype kMostLines = 60;

void AddLines(const std::vector<Block>& blocks, QStringList& lines) {
  for (const Block& block : blocks) {
    if (lines.size() > kMostLines) return;
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      lines << paragraph->Text().split(QChar(QChar::LineSeparator));
      continue;
    }
    for (const Row& row : std::get<std::unique_ptr<Table>>(block)->rows) {
      if (lines.size() > kMostLines) return;
      for (const Cell& cell : row.cells) AddLines(cell.blocks, lines);
    }
  }
}

}  // namespace

QString NameOf(const Page& page) {
  static const QRegularExpression numbered(u"^.{1,40} N .{1,20} от \\d\\d\\.\\d\\d\\.\\d{4}"_s);
  static const QRegularExpression addressed(u"^(?:Покупатель|Кому|Куда):\\s*(.+)$"_s);
  QStringList lines;
  AddLines(page.blocks, lines);
  QString name;
  QString party;
  for (const QString& each : lines) {
    const QString line = each.simplified();
    if (const auto match = numbered.match(line); name.isEmpty()) name = match.captured();
    if (const auto match = addressed.match(line); party.isEmpty()) party = match.captured(1);
  }
  if (name.isEmpty()) return page.title;
  return party.isEmpty() || party == u"-"_s ? name : name + u", "_s + party;
}

}  // namespace kladez::viewer
