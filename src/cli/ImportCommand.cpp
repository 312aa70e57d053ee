#include "books/copies/Safekeeping.h"
#include "books/prices/GoodsBringer.h"
#include "books/prices/PriceStore.h"
#include "books/prices/SheetFile.h"
#include "cli/Commands.h"
#include "cli/OpenedBooks.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// "Наименование=1,Цена закупа=4" over what was guessed; a column 0 is none.
void TakeColumns(const QString& given, SheetLayout& layout) {
  const QStringList pairs = given.split(u',', Qt::SkipEmptyParts);
  for (const QString& pair : pairs) {
    bool known = false;
    bool number = false;
    const int column = pair.section(u'=', -1).toInt(&number);
    for (size_t i = 0; i < kGoodsFields; ++i) {
      const auto field = static_cast<GoodsField>(i);
      if (TitleOf(field) != pair.section(u'=', 0, 0).trimmed()) continue;
      known = true;
      layout.Give(field, column - 1);
    }
    if (!known || !number || column < 0) {
      throw WrongWords(u"Столбцы: не понято «%1»"_s.arg(pair));
    }
  }
}

// "Главный склад/Розница".
void TakePriceList(const QString& given, const OpenedBooks& books, BringChoice& choice) {
  if (given.isEmpty()) return;
  choice.warehouse = given.section(u'/', 0, -2);
  const QStringList lists = PriceStore(books.data, books.session).Names(choice.warehouse);
  choice.price_list = static_cast<int>(lists.indexOf(given.section(u'/', -1)));
  if (!books.session.warehouses.contains(choice.warehouse) || choice.price_list < 0) {
    throw WrongWords(u"Нет прайс-листа «%1»: нужно СКЛАД/ПРАЙС"_s.arg(given));
  }
}

void Tell(const BringPlan& plan, QTextStream& out) {
  const auto name_of = [](Fate fate) {
    return fate == Fate::kNew ? u"новый"_s : fate == Fate::kChanged ? u"изменён"_s : u"отказ"_s;
  };
  for (const BroughtRow& row : plan.rows) {
    if (row.fate == Fate::kSame || row.fate == Fate::kHeading) continue;
    out << row.number << u'\t' << name_of(row.fate) << u'\t' << row.goods.name << u'\t' << row.told
        << u'\n';
  }
  out << u"Новых товаров %1, изменено %2, без изменений %3, отказано %4\n"_s
             .arg(plan.Count(Fate::kNew))
             .arg(plan.Count(Fate::kChanged))
             .arg(plan.Count(Fate::kSame))
             .arg(plan.Count(Fate::kRefused));
}

}  // namespace

ExitCode RunImport(Words& words, QTextStream& out) {
  OpenedBooks books(words);
  BringChoice choice;
  choice.add_new = !words.TakeFlag(u"--known"_s);
  choice.group = words.TakeValue(u"--group"_s);
  TakePriceList(words.TakeValue(u"--prices"_s), books, choice);
  const QString columns = words.TakeValue(u"--columns"_s);
  const bool only_try = words.TakeFlag(u"--try"_s);
  const Sheet sheet = ReadSheetFile(words.TakeRest(1, 1).value(0));
  const bool to_prices = choice.price_list >= 0;
  choice.layout = GuessLayout(sheet, to_prices ? PlainPrice::kSale : PlainPrice::kPurchase);
  TakeColumns(columns, choice.layout);
  if (choice.layout[GoodsField::kName] == kNoColumn) {
    throw WrongWords(u"Не видно столбца с наименованиями: назовите его в --columns"_s);
  }
  const GoodsBringer bringer(books.data, books.session);
  const BringPlan plan = bringer.Plan(sheet, choice);
  Tell(plan, out);
  if (sheet.is_cut) out << u"Таблица слишком велика: прочитано не всё\n"_s;
  if (!only_try) {
    SettingsStore settings;
    const Clock clock;
    const Safekeeping keeping(books.data, settings, clock);
    bringer.Save(plan);
  }
  const bool whole = plan.Count(Fate::kRefused) == 0 && !sheet.is_cut;
  return whole ? ExitCode::kSound : ExitCode::kFindings;
}

}  // namespace kladez
