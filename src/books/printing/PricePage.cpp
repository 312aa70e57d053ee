#include "books/printing/PricePage.h"

#include "books/directories/GoodsOrder.h"
#include "formats/DatabaseFiles.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct PrintRow : PriceRow {
  bool selected = false;
};

QString StockOf(const StockByName& stock, const QString& name) { return stock.value(name, u"0"_s); }

bool IsPrinted(const PrintRow& row, const StockByName& stock, const PricePageOptions& options) {
  const auto quantity = [&] { return NumberOr(StockOf(stock, row.name)); };
  switch (options.goods) {
    case PrintedGoods::kAll:
      return true;
    case PrintedGoods::kPresent:
      return quantity() >= 1 && quantity() <= options.at_most;
    case PrintedGoods::kAbsent:
      return quantity() == 0;
    case PrintedGoods::kSelected:
      return row.selected;
    case PrintedGoods::kTicked:
      return row.ticked;
    case PrintedGoods::kNotTicked:
      return !row.ticked;
  }
  Q_UNREACHABLE();
}

// The rows that are printed, in print order. Groups are never filtered: one without goods still
// prints its heading.
std::vector<PrintRow> RowsToPrint(const PricePageRows& source, const StockByName& stock,
                                  const PricePageOptions& options) {
  std::vector<PrintRow> all(source.rows.size());
  for (size_t i = 0; i < all.size(); ++i) static_cast<PriceRow&>(all[i]) = source.rows[i];
  for (const int row : source.selected) all.at(row).selected = true;
  std::vector<PrintRow> printed;
  printed.reserve(all.size());
  for (PrintRow& row : all) {
    if (row.IsGroup() ? options.by_groups : IsPrinted(row, stock, options)) {
      printed.push_back(std::move(row));
    }
  }
  return options.by_groups ? printed : SortedByName(std::move(printed));
}

void WriteHead(PageWriter& page, const PricePageOptions& options) {
  const auto line = [&](const std::optional<QString>& text, PageFont font) {
    if (text) page.Line(FontHtml(font, *text) + u"<br>"_s);
  };
  line(options.firm, {.size = 3, .bold = true});
  line(options.address, {.size = 2});
  line(options.phone, {.size = 2});
  if (options.title) {
    page.Line(u"<p align=CENTER>"_s +
              FontHtml({.size = 4, .bold = true}, u"<i>"_s + *options.title + u"</i>"_s) +
              u"</p>"_s);
  }
  // A size between two that the language has: meant, and read as 1 by most viewers.
  if (options.date) page.Line(u"<FONT FACE=Arial SIZE=1.5>"_s + *options.date + u"</FONT><br>"_s);
}

QStringList Headings(const PricePageOptions& options) {
  QStringList headings;
  if (options.stock) headings.append(u"Склад"_s);
  for (const auto* heading : {&options.unit, &options.purchase, &options.sale}) {
    if (*heading) headings.append(**heading);
  }
  return headings;
}

QString PriceAt(const QString& price, double percent) {
  return FormatMoney(NumberOr(price) * percent / 100);
}

QStringList Texts(const PrintRow& row, const StockByName& stock, const PricePageOptions& options) {
  QStringList texts{row.name};
  if (options.stock) texts.append(StockOf(stock, row.name));
  if (options.unit) texts.append(row.unit);
  if (options.purchase) texts.append(PriceAt(row.purchase, options.purchase_percent));
  if (options.sale) texts.append(PriceAt(row.sale, options.sale_percent));
  return texts;
}

}  // namespace

StockByName LoadStockByName(const DataDir& data, const Session& session,
                            const QStringList& warehouses) {
  const QByteArray goods = data.Read(session.Path(files::kGoods));
  QHash<QByteArrayView, double> sums;
  ForEachGoods(goods, [&](const RawGoods& record) {
    if (!record.IsGroup()) sums.insert(record.name, 0);
  });
  for (const QString& warehouse : warehouses) {
    const QByteArray ledger = data.Read(LedgerPath(session, warehouse));
    ForEachLedgerRecord(ledger,
                        [&](QByteArrayView name, QByteArrayView quantity, QByteArrayView /*unit*/) {
                          const auto sum = sums.find(name);
                          if (sum != sums.end()) *sum = RoundGeneral(*sum + NumberOr(quantity));
                        });
  }
  StockByName stock;
  stock.reserve(sums.size());
  for (auto sum = sums.cbegin(); sum != sums.cend(); ++sum) {
    stock.insert(DecodeText(sum.key()), GeneralText(*sum));
  }
  return stock;
}

QString PriceEffectText(const PricePageOptions& options) {
  QStringList effects;
  if (options.purchase && options.purchase_percent != 100) {
    effects.append(u"цена закупа "_s + GeneralText(options.purchase_percent) + u'%');
  }
  if (options.sale && options.sale_percent != 100) {
    effects.append(u"цена реализации "_s + GeneralText(options.sale_percent) + u'%');
  }
  QString text = effects.join(u", "_s);
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

QByteArray PricePage(const PricePageRows& rows, const StockByName& stock,
                     const PricePageOptions& options) {
  PageWriter page(u"Прайс-лист"_s);
  WriteHead(page, options);
  GoodsTable table(page, Headings(options), options.borders);
  const int gap = options.by_groups ? 0 : options.gap.value_or(0);
  std::optional<QString> letter_before;
  for (const PrintRow& row : RowsToPrint(rows, stock, options)) {
    if (row.IsGroup()) {
      table.Group(row.name.mid(1));
      continue;
    }
    // Letters are compared as they are written: "ч" after "Ч" is another one.
    const QString letter = row.name.left(1);
    const bool new_block = letter_before && *letter_before != letter;
    for (int i = 0; new_block && i < gap; ++i) table.Gap();
    letter_before = letter;
    table.Goods(Texts(row, stock, options));
  }
  table.End();
  if (options.signature) {
    page.Line(u"<p align=CENTER>"_s + FontHtml({.size = 2}, *options.signature) + u"</p>"_s);
  }
  page.Line(u"</body></html>"_s);
  return page.Take();
}

}  // namespace kladez
