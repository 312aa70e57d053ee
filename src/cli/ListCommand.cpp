#include "books/directories/WarehouseDirectory.h"
#include "books/store/Catalogue.h"
#include "books/store/OutsideFile.h"
#include "cli/Commands.h"
#include "cli/Lists.h"
#include "cli/OpenedBooks.h"
#include "formats/Dates.h"
#include "formats/tables/TableTexts.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QDate TakeDay(Words& words, const QString& name) {
  const QString text = words.TakeValue(name);
  const auto day = ParseDate(text);
  if (!text.isEmpty() && !day) throw WrongWords(u"%1: нужна дата ДД.ММ.ГГГГ"_s.arg(name));
  return day.value_or(QDate());
}

Table Bases(const DataDir& data) {
  Table table{u"Базы данных"_s, {}, {{u"Каталог"_s}, {u"Наименование"_s}}, {}};
  for (const CatalogueEntry& entry : ListDatabases(data)) {
    table.rows.push_back({{entry.descriptor.path.chopped(1), entry.descriptor.name}});
  }
  return table;
}

Table Wanted(Words& words) {
  ListWish wish;
  wish.warehouse = words.TakeValue(u"--warehouse"_s);
  if (wish.warehouse.isEmpty()) wish.warehouse = kAllWarehouses.toString();
  wish.prices = words.TakeValue(u"--list"_s);
  wish.from = TakeDay(words, u"--from"_s);
  wish.to = TakeDay(words, u"--to"_s);
  Words rest = words;
  for (const QString& name : {u"--data"_s, u"--base"_s}) rest.TakeValue(name);
  const QString name = rest.TakeRest(1, 1).value(0);
  if (name == u"bases") return Bases(DataDir(DataDirectory(words)));
  const OpenedBooks books(words);
  return ListOf(name, books.data, books.session, wish);
}

}  // namespace

ExitCode RunList(Words& words, QTextStream& out) {
  const bool json = words.TakeFlag(u"--json"_s);
  const QString file = words.TakeValue(u"--out"_s);
  const Table table = Wanted(words);
  const QByteArray bytes = json ? TableAsJson(table) : TableAsCsv(table);
  if (file.isEmpty()) {
    out << QString::fromUtf8(bytes);  // without the mark: scripts do not want it
  } else {
    WriteOutside(file, bytes);
  }
  return ExitCode::kSound;
}

}  // namespace kladez
