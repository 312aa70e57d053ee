#include "cli/Lists.h"

#include "books/directories/GoodsExtras.h"
#include "books/directories/PartyDirectory.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/prices/PriceStore.h"
#include "books/reports/GoodsReport.h"
#include "books/reports/OrderList.h"
#include "books/reports/PartyReport.h"
#include "books/reports/ToldTables.h"
#include "books/stock/DocumentBook.h"
#include "books/stock/OnHand.h"
#include "books/store/Clock.h"
#include "books/store/OwnRecordsFile.h"
#include "cli/Words.h"
#include "formats/DatabaseFiles.h"
#include "formats/Dates.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using enum CellKind;

struct Books {
  const DataDir& data;
  const Session& session;
  const ListWish& wish;

  QStringList Warehouses() const {
    return wish.warehouse == kAllWarehouses ? session.warehouses : QStringList{wish.warehouse};
  }
};

Table Goods(const Books& books) {
  Table table{u"Справочник товаров"_s,
              {},
              {{u"Наименование"_s},
               {u"Страна"_s},
               {u"N декларации"_s},
               {u"Ед.изм."_s},
               {u"Цена закупа"_s, kMoney},
               {u"Штрихкод"_s},
               {u"Минимум"_s, kNumber}},
              {}};
  const OwnRecordsFile extras(books.data, books.session.Path(files::kGoodsExtras));
  for (const GoodsRecord& goods : ReadGoods(books.data.Read(books.session.Path(files::kGoods)))) {
    const GoodsExtras own = goods.IsGroup() ? GoodsExtras() : ExtrasOf(extras.records, goods.name);
    table.rows.push_back({{goods.name, goods.country, goods.declaration, goods.unit, goods.price,
                           own.barcode, own.minimum},
                          goods.IsGroup()});
  }
  return table;
}

template <PartyKind kind>
Table Parties(const Books& books) {
  constexpr QStringView kTitles[] = {u"Фирмы", u"Клиенты", u"Поставщики"};
  Table table{kTitles[static_cast<size_t>(kind)].toString(),
              {},
              {{u"Наименование"_s},
               {u"Юридический адрес"_s},
               {u"Телефон"_s},
               {u"ИНН"_s},
               {u"Расчётный счёт"_s},
               {u"БИК"_s}},
              {}};
  Session session = books.session;
  const PartyDirectory directory(books.data, session, kind);
  for (const Party& party : directory.Rows()) {
    using enum PartyField;
    TableRow& row = table.rows.emplace_back();
    for (const PartyField field : {kName, kLegalAddress, kPhone, kTaxNumber, kAccount, kBankCode}) {
      row.cells << FieldOf(kind, party, field);
    }
  }
  return table;
}

Table WarehousesOf(const Books& books) {
  Table table{u"Склады"_s, {}, {{u"Наименование"_s}}, {}};
  for (const QString& name : books.session.warehouses) table.rows.push_back({{name}});
  return table;
}

Table PriceLists(const Books& books) {
  Table table{u"Прайс-листы"_s, {}, {{u"Склад"_s}, {u"Прайс-лист"_s}}, {}};
  const PriceStore store(books.data, books.session);
  for (const QString& warehouse : books.Warehouses()) {
    for (const QString& name : store.Names(warehouse)) table.rows.push_back({{warehouse, name}});
  }
  return table;
}

Table Prices(const Books& books) {
  const PriceStore store(books.data, books.session);
  const QString warehouse = books.wish.warehouse == kAllWarehouses
                                ? books.session.warehouses.value(0)
                                : books.wish.warehouse;
  const QStringList names = store.Names(warehouse);
  const auto list = books.wish.prices.isEmpty() ? 0 : names.indexOf(books.wish.prices);
  if (list < 0) throw WrongWords(u"Нет прайс-листа «%1»"_s.arg(books.wish.prices));
  Table table{u"Прайс-лист"_s,
              warehouse + u": "_s + names.value(list),
              {{u"Наименование"_s},
               {u"Ед.изм."_s},
               {u"Цена закупа"_s, kMoney},
               {u"Цена реализации"_s, kMoney}},
              {}};
  const PriceList prices = store.Load(warehouse, static_cast<int>(list), GoodsView::kGroups);
  for (const PriceRow& row : prices.Rows()) {
    table.rows.push_back({{row.name, row.unit, row.purchase, row.sale}, row.IsGroup()});
  }
  return table;
}

Table Stock(const Books& books) {
  Table table{
      u"Наличие товаров"_s,
      books.wish.warehouse,
      {{u"Наименование"_s}, {u"Кол-во"_s, kNumber}, {u"Ед.изм."_s}, {u"Цена закупа"_s, kMoney}},
      {}};
  const OnHandList list =
      LoadOnHand(books.data, books.session, books.Warehouses(), GoodsView::kGroups);
  for (const OnHandRow& row : list.Rows()) {
    table.rows.push_back({{row.name, row.quantity, row.unit, row.price}, row.IsGroup()});
  }
  return table;
}

bool Passes(const ListWish& wish, const QString& text) {
  if (!wish.from.isValid() && !wish.to.isValid()) return true;
  const auto date = ParseDate(text);
  return date && (!wish.from.isValid() || wish.from <= *date) &&
         (!wish.to.isValid() || *date <= wish.to);
}

template <DocumentKind kind>
Table Documents(const Books& books) {
  const DocumentBook& book = BookOf(kind);
  Table table{book.name.toString(),
              books.wish.warehouse,
              {{u"Файл"_s},
               {u"Номер"_s},
               {u"Дата"_s, kDate},
               {kind == DocumentKind::kTransfer ? u"Откуда"_s : u"Партнёр"_s},
               {book.in_warehouse ? u"Склад"_s : u"Куда"_s},
               {u"Сумма"_s, kMoney, true},
               {u"Закрыта"_s}},
              {}};
  for (const QString& warehouse : book.in_warehouse ? books.Warehouses() : QStringList{{}}) {
    books.data.ForEachFile(
        DocumentDirectory(books.session, kind, warehouse), FormatOf(kind).extension,
        [&](const DataDir::ListedFile& file) {
          const DocumentHead head = ReadDocumentHead(kind, file.bytes.value_or(QByteArrayView()));
          if (file.bytes && Passes(books.wish, head.date)) {
            table.rows.push_back({{file.name, head.number, head.date, head.party,
                                   book.in_warehouse ? warehouse : head.destination,
                                   head.*book.total, head.closed}});
          }
          return true;
        });
  }
  return table;
}

CellKind KindOf(FigureKind kind) {
  switch (kind) {
    case FigureKind::kText:
      return kText;
    case FigureKind::kMoney:
    case FigureKind::kPrice:
      return kMoney;
    default:
      return kNumber;
  }
}

Table TableOf(const TableReport& report, const QString& note) {
  Table table{report.heading, note, {}, {}};
  for (size_t i = 0; i < report.columns.size(); ++i) {
    const FigureKind kind = report.columns[i].kind;
    const bool total =
        i < report.total.size() && !report.total[i].isEmpty() &&
        (kind == FigureKind::kCount || kind == FigureKind::kQuantity || kind == FigureKind::kMoney);
    table.columns.push_back({report.columns[i].title, KindOf(kind), total});
  }
  for (size_t row = 0; row < report.rows; ++row) {
    TableRow& cells = table.rows.emplace_back();
    for (size_t i = 0; i < report.columns.size(); ++i) cells.cells << report.cell(row, i);
  }
  for (size_t i = 0; i < table.columns.size(); ++i) {
    CellKind& kind = table.columns[i].kind;
    if (kind == kText) kind = GuessKind(table.rows, i, false);
  }
  return table;
}

template <auto collect>
Table Report(const Books& books) {
  const ListWish& wish = books.wish;
  ReportScope scope{wish.warehouse, {PeriodKind::kAll, Clock().Today(), {}, {}}};
  if (wish.from.isValid() || wish.to.isValid()) {
    scope.period.kind = PeriodKind::kRange;
    scope.period.from = wish.from.isValid() ? wish.from : QDate(2000, 1, 1);
    scope.period.to = wish.to.isValid() ? wish.to : scope.period.today;
  }
  return TableOf(collect(books.data, books.session, scope, {}), wish.warehouse);
}

Table Order(const Books& books) { return TableOf(CollectOrder(books.data, books.session), {}); }

struct ListRow {
  QStringView name;
  Table (*make)(const Books& books);
};
constexpr ListRow kLists[] = {
    {u"goods", Goods},
    {u"firms", Parties<PartyKind::kFirm>},
    {u"clients", Parties<PartyKind::kClient>},
    {u"suppliers", Parties<PartyKind::kSupplier>},
    {u"warehouses", WarehousesOf},
    {u"pricelists", PriceLists},
    {u"prices", Prices},
    {u"stock", Stock},
    {u"receipts", Documents<DocumentKind::kReceipt>},
    {u"shipments", Documents<DocumentKind::kShipment>},
    {u"transfers", Documents<DocumentKind::kTransfer>},
    {u"order", Order},
    {u"sales", Report<&CollectSalesTable>},
    {u"speed", Report<&CollectSpeedTable>},
    {u"flow", Report<&CollectFlowTable>},
    {u"by-client", Report<&CollectClients>},
    {u"by-supplier", Report<&CollectSuppliers>},
    {u"margin", Report<&CollectMargins>},
    {u"abc", Report<&CollectAbc>},
};

}  // namespace

QStringList ListNames() {
  QStringList names;
  for (const ListRow& row : kLists) names << row.name.toString();
  return names;
}

Table ListOf(const QString& name, const DataDir& data, const Session& session,
             const ListWish& wish) {
  if (wish.warehouse != kAllWarehouses && !session.warehouses.contains(wish.warehouse)) {
    throw WrongWords(u"Нет склада «%1»"_s.arg(wish.warehouse));
  }
  for (const ListRow& row : kLists) {
    if (row.name == name) return row.make({data, session, wish});
  }
  throw WrongWords(u"Нет списка «%1», есть: bases, "_s.arg(name) + ListNames().join(u", "_s));
}

}  // namespace kladez
