#include "screens/stock/documents/DocumentScreens.h"

#include "screens/directories/GoodsPicker.h"
#include "screens/prices/PricePicker.h"
#include "screens/printing/CashOrderScreen.h"
#include "screens/printing/InvoiceScreen.h"
#include "screens/printing/WaybillScreen.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;

void RunWaybill(AppContext& context, const PrintSource& source, QWidget* parent) {
  WaybillScreen(context, source, parent).exec();
}

template <InvoiceKind kind>
void RunInvoice(AppContext& context, const PrintSource& source, QWidget* parent) {
  InvoiceScreen(context, kind, source, parent).exec();
}

void RunCashOrder(AppContext& context, const PrintSource& source, QWidget* parent) {
  CashOrderScreen(context, source, parent).exec();
}

void PickFromDirectory(AppContext& context, const QString&, const QString&, QWidget* parent,
                       const StockAfter& on_hand, const TakePick& take) {
  GoodsPicker picker(context, PickFor::kReceipt, parent);
  picker.TellOnHand(on_hand);
  QObject::connect(&picker, &GoodsPicker::Picked, parent, take);
  picker.exec();
}

// Stays open from one pick to the next.
void PickFromPrices(AppContext& context, const QString& warehouse, const QString& price_list,
                    QWidget* parent, const StockAfter& on_hand, const TakePick& take) {
  PricePicker picker(context, warehouse, price_list, parent);
  picker.TellOnHand(on_hand);
  QObject::connect(&picker, &PricePicker::Picked, parent, take);
  picker.exec();
}

Column Text(const QString& title, int twips) { return {title, twips}; }
Column Number(const QString& title, int twips) { return {title, twips, true}; }
Column Sum(const QString& title, int twips) {
  return {.title = title, .twips = twips, .number = true, .total = true};
}
Column Date() { return {u"Дата"_s, 950, false, false, u"00.00.0000"_s}; }
Column Name(const QString& title, int twips) { return {title, twips, false, true}; }

LineColumn NameOf(int twips) {
  return {Name(u"Наименование"_s, twips), [](const DraftLine& line) { return line.line.name; }};
}
LineColumn Quantity() {
  return {Number(u"Кол-во"_s, 1050), [](const DraftLine& line) { return line.line.quantity; }};
}
LineColumn Unit() {
  return {Text(u"Ед.изм."_s, 1050), [](const DraftLine& line) { return line.line.unit; }};
}
LineColumn Cost(bool hidden_from_seller) {
  return {Number(u"Цена зак"_s, 950), [](const DraftLine& line) { return line.line.cost; },
          hidden_from_seller};
}
LineColumn Price(const QString& title) {
  return {Number(title, 950), [](const DraftLine& line) { return line.line.price; }};
}
// The titles of sums begin with a Latin C, as they always have.
LineColumn Amount(const QString& title) {
  return {Sum(title, 950), [](const DraftLine& line) { return line.amount; }};
}
LineColumn NetPrice() {
  return {Number(u"Цена со скидкой"_s, 1500),
          [](const DraftLine& line) { return line.line.net_price; }};
}
LineColumn NetAmount() {
  return {Sum(u"Cумма со скидкой"_s, 1600), [](const DraftLine& line) {
            return LineAmount(line.line.quantity, line.line.net_price).value_or(u"0.00"_s);
          }};
}

const DocumentScreens& Receipts() {
  static const DocumentScreens screens = {
      .kind = DocumentKind::kReceipt,
      .register_name = u"TovPrih"_s,
      .register_caption = u"Приход"_s,
      .register_columns = {{Text(u"Номер"_s, 850), &H::number},
                           {Date(), &H::date},
                           {Name(u"Поставщик"_s, 2900), &H::party},
                           {Sum(u"Сумма"_s, 1400), &H::sum},
                           {Text(u"Закрыт"_s, 1400), &H::closed},
                           {Text(u"Файл"_s, 0), nullptr}},
      .has_journal = true,
      .delete_closed_question = u"Списать товар со склада?"_s,
      .delete_closed_outcome =
          u"«Да» — удалить её и списать со склада то, что по ней пришло; «Нет» — "
          u"удалить, остатки оставить как есть."_s,
      .editor_name = u"PrihNew"_s,
      .editor_caption = u"Приход"_s,
      .party_caption = u"&Поставщик:"_s,
      .party_hint = u"Поставщик"_s,
      .sum_caption = u"Сумма по счету:"_s,
      .sum_hint = u"Сумма по счету"_s,
      .editor_columns = {NameOf(3100), Quantity(), Unit(), Price(u"Цена"_s), Amount(u"Cумма"_s)},
      .pick = &PickFromDirectory,
      .prints = {{u"prn"_s, u"&Накладная"_s, &RunWaybill}},
      .properties_name = u"TovPrih_Ass"_s,
      .properties_caption = u"Свойства накладной прихода товара N "_s,
      .properties_sum_caption = u"Сумма по накладной:"_s,
      .properties_columns = {NameOf(3600), Quantity(), Unit(), Price(u"Цена"_s),
                             Amount(u"Cумма"_s)},
      .prints_from_properties = true,
  };
  return screens;
}

const DocumentScreens& Shipments() {
  static const DocumentScreens screens = {
      .kind = DocumentKind::kShipment,
      .register_name = u"TovUhod"_s,
      .register_caption = u"Расход"_s,
      .register_columns = {{Text(u"Номер"_s, 850), &H::number},
                           {Date(), &H::date},
                           {Name(u"Клиент"_s, 2780), &H::party},
                           {Sum(u"Сумма"_s, 1400), &H::sum},
                           {Number(u"Скидка %"_s, 1000), &H::discount},
                           {Sum(u"Сумма со скидкой"_s, 1400), &H::net_sum},
                           {Text(u"Закрыт"_s, 1000), &H::closed},
                           {Text(u"Файл"_s, 0), nullptr}},
      .has_journal = true,
      .delete_closed_question = u"Возвратить товар на склад?"_s,
      .delete_closed_outcome =
          u"«Да» — удалить её и возвратить на склад то, что по ней ушло; «Нет» — "
          u"удалить, остатки оставить как есть."_s,
      .editor_name = u"UhodNew"_s,
      .editor_caption = u"Расход"_s,
      .party_caption = u"К&лиент:"_s,
      .party_hint = u"Клиент"_s,
      .sum_caption = u"Сумма:"_s,
      .sum_hint = u"Сумма"_s,
      .editor_columns = {NameOf(3650), Quantity(), Unit(), Cost(true), Price(u"Цена реал"_s),
                         Amount(u"Cумма реал"_s)},
      .pick = &PickFromPrices,
      .prints = {{u"prn"_s, u"&Накладная"_s, &RunWaybill},
                 {u"prs"_s, u"Счет-&фактура"_s, &RunInvoice<InvoiceKind::kTaxInvoice>},
                 {u"prp"_s, u"Приходный кассовый &ордер"_s, &RunCashOrder},
                 {u"pri"_s, u"С&чет"_s, &RunInvoice<InvoiceKind::kBill>}},
      .properties_name = u"TovUhod_Ass"_s,
      .properties_caption = u"Свойства накладной ухода товара N "_s,
      .properties_sum_caption = u"Сумма:"_s,
      .properties_columns = {NameOf(3000), Quantity(), Unit(), Cost(true), Price(u"Цена реал"_s),
                             NetPrice(), Amount(u"Cумма"_s), NetAmount()},
      .prints_from_properties = true,
  };
  return screens;
}

const DocumentScreens& Transfers() {
  static const DocumentScreens screens = {
      .kind = DocumentKind::kTransfer,
      .register_name = u"vnutr"_s,
      .register_caption = u"Внутреннее перемещение"_s,
      .register_columns = {{Text(u"Номер"_s, 850), &H::number},
                           {Date(), &H::date},
                           {Text(u"Откуда"_s, 2000), &H::party},
                           {Name(u"Куда"_s, 2000), &H::destination},
                           {Sum(u"Сумма"_s, 1000), &H::sum},
                           {Text(u"Файл"_s, 0), nullptr}},
      .has_journal = false,
      .delete_closed_question = u"Возвратить/списать?"_s,
      .delete_closed_outcome =
          u"«Да» — удалить её, возвратить товар на склад «Откуда» и списать со "
          u"склада «Куда»; «Нет» — удалить, остатки оставить как есть."_s,
      .editor_name = u"vnutrNew"_s,
      .editor_caption = u"Перемещение"_s,
      .party_caption = u"&Откуда:"_s,
      .party_hint = u"Откуда"_s,
      .sum_caption = u"Сумма :"_s,
      .sum_hint = u"Сумма по счету"_s,
      .editor_columns = {NameOf(2280), Quantity(), Unit(), Cost(false), Price(u"Цена реал"_s),
                         Amount(u"Cумма реал"_s)},
      .pick = &PickFromPrices,
      .prints = {{u"prn"_s, u"&Накладная"_s, &RunWaybill}},
      .properties_name = u"vnutr_Ass"_s,
      .properties_caption = u"Свойства накладной перемещения товара N "_s,
      .properties_sum_caption = u"Сумма по накладной:"_s,
      .properties_columns = {NameOf(2280), Quantity(), Unit(), Cost(false), Price(u"Цена реал"_s),
                             Amount(u"Cумма реал"_s)},
      .prints_from_properties = false,
  };
  return screens;
}

}  // namespace

const DocumentScreens& ScreensOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::kReceipt:
      return Receipts();
    case DocumentKind::kShipment:
      return Shipments();
    case DocumentKind::kTransfer:
      return Transfers();
  }
  Q_UNREACHABLE();
}

RecordModel* NewLineModel(const std::vector<LineColumn>& columns, bool for_seller,
                          const std::vector<DraftLine>& lines, QObject* parent,
                          const std::function<bool(int row)>& is_short) {
  std::vector<Column> shown;
  for (const LineColumn& line : columns) {
    shown.push_back(line.column);
    if (for_seller && line.hidden_from_seller) shown.back().twips = 0;
  }
  RowSource source;
  source.count = [&lines] { return static_cast<int>(lines.size()); };
  source.text = [&lines, &columns](int row, int column) {
    return columns[column].text(lines[row]);
  };
  source.is_amiss = is_short;
  return new RecordModel(std::move(shown), std::move(source), parent);
}

}  // namespace kladez
