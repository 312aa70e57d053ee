#include "books/prices/BringPlanner.h"

#include <algorithm>

#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using enum GoodsField;

constexpr qsizetype kLongestText = 250;
constexpr double kHighestNumber = 1e12;
const QString kUsualGroup = u"Новые товары"_s;

// One line of what our files can hold: blanks of all kinds are blanks, signs that have a plain form
// take it.
QString Plain(const QString& cell) {
  QString text = cell.simplified();
  for (QChar& c : text) {
    switch (c.unicode()) {
      case u'\u2010':
      case u'\u2011':
      case u'\u2212':
        c = u'-';
        break;
      case u'\u00D7':
        c = u'x';
        break;
      case u'\u00B2':
        c = u'2';
        break;
      case u'\u00B3':
        c = u'3';
        break;
      default:
        break;
    }
  }
  return text;
}

// What is the same for two spellings of one name.
QString KeyOf(const QString& name) { return FoldCase(name.simplified()).replace(u'Ё', u'Е'); }

QString AmountText(GoodsField field, double value) {
  if (field != kMinimum) return FormatMoney(value);
  return value > 0 ? GeneralText(value) : QString();
}

bool IsNumber(GoodsField field) {
  return field == kPurchase || field == kSale || field == kMinimum;
}

QString FaultOfText(GoodsField field, const QString& text) {
  if (text.size() > kLongestText) {
    return u"%1: длиннее %2 знаков"_s.arg(TitleOf(field)).arg(kLongestText);
  }
  const auto odd =
      std::find_if(text.begin(), text.end(), [](QChar c) { return c < u' ' || !CanEncode(c); });
  if (odd == text.end()) return {};
  return u"%1: знака «%2» в файлах базы быть не может"_s.arg(TitleOf(field), QString(*odd));
}

// A spreadsheet has made a number of the code.
bool IsRoundedCode(const QString& text) {
  return text.contains(u'E', Qt::CaseInsensitive) && (text.contains(u',') || text.contains(u'.'));
}

QString FaultOfCode(const QString& code) {
  if (IsRoundedCode(code)) {
    return u"Штрихкод «%1» округлён программой таблиц: задайте столбцу текстовый формат"_s.arg(
        code);
  }
  return BarcodeFault(code);
}

}  // namespace

struct BringPlanner::Cells {
  std::array<QString, kGoodsFields> texts;  // numbers as the books write them
  QString fault;

  QString& operator[](GoodsField field) { return texts[static_cast<size_t>(field)]; }
  const QString& operator[](GoodsField field) const { return texts[static_cast<size_t>(field)]; }
};

BringPlanner::BringPlanner(const std::vector<GoodsRecord>& goods, const OwnRecords& extras,
                           const PriceList& prices, const BringChoice& choice)
    : goods_(goods), extras_(extras), choice_(choice) {
  // Of several goods of one name the first counts.
  for (size_t i = goods.size(); i-- > 0;) {
    if (goods[i].IsGroup()) continue;
    by_name_.insert(goods[i].name, static_cast<int>(i));
    by_key_.insert(KeyOf(goods[i].name), static_cast<int>(i));
  }
  for (const QString& name : extras.Names()) {
    const QString code = BarcodeKey(ExtrasOf(extras, name).barcode);
    const auto at = by_name_.constFind(name);
    if (!code.isEmpty() && at != by_name_.constEnd()) by_barcode_.insert(code, *at);
  }
  for (const PriceRow& row : prices.Rows()) {
    if (!row.IsGroup() && !sale_.contains(row.name)) sale_.insert(row.name, row.sale);
  }
}

BringPlan BringPlanner::Plan(const Sheet& sheet) {
  for (const int column : choice_.layout.columns) numbers_.emplace_back(sheet, column);
  BringPlan plan{choice_, {}, {}};
  plan.rows.reserve(sheet.rows.size());
  for (size_t i = choice_.layout.first_row; i < sheet.rows.size(); ++i) {
    BroughtRow& planned = plan.rows.emplace_back();
    planned.number = sheet.rows[i].number;
    PlanRow(sheet.rows[i], planned);
  }
  return plan;
}

void BringPlanner::PlanRow(const SheetRow& row, BroughtRow& planned) {
  if (HeadsOthers(row)) {
    heading_ = Plain(row.cells.value(choice_.layout[kName]));
    planned.fate = Fate::kHeading;
    planned.goods.name = u' ' + heading_;
    planned.told = u"Заголовок: товаров в этой строке нет"_s;
    return;
  }
  Cells cells = Take(row);
  planned.goods.name = cells[kName];
  planned.at = Find(cells);
  planned.told = Refusal(cells, planned.at);
  if (planned.told.isEmpty()) planned.told = TellTwice(cells, planned.at, row.number);
  if (!planned.told.isEmpty()) return;
  if (planned.at < 0) {
    PlanNew(cells, planned);
  } else {
    PlanChange(cells, planned);
  }
}

// A row with a name and nothing else, as groups stand in lists.
bool BringPlanner::HeadsOthers(const SheetRow& row) const {
  const int name = choice_.layout[kName];
  const auto& columns = choice_.layout.columns;
  if (row.cells.value(name).trimmed().isEmpty()) return false;
  if (std::count(columns.begin(), columns.end(), kNoColumn) + 1 == kGoodsFields) return false;
  for (qsizetype i = 0; i < row.cells.size(); ++i) {
    if (i != name && !row.cells[i].trimmed().isEmpty()) return false;
  }
  return true;
}

BringPlanner::Cells BringPlanner::Take(const SheetRow& row) {
  Cells cells;
  for (size_t i = 0; i < kGoodsFields; ++i) {
    const int column = choice_.layout.columns[i];
    const auto field = static_cast<GoodsField>(i);
    if (column == kNoColumn) continue;
    QString& text = cells[field];
    text = Plain(row.cells.value(column));
    if (field == kBarcode) text.remove(u' ');
    QString fault = FaultOfText(field, text);
    if (fault.isEmpty() && IsNumber(field) && !text.isEmpty()) {
      const auto value = numbers_[i].Read(row.cells.value(column));
      if (!value || *value < 0 || *value > kHighestNumber) {
        fault = u"%1: «%2» не подходит, нужно число не меньше нуля"_s.arg(TitleOf(field), text);
      } else {
        text = AmountText(field, *value);
        if (text.isEmpty()) text = u"0"_s;
      }
    }
    if (cells.fault.isEmpty()) cells.fault = fault;
  }
  return cells;
}

int BringPlanner::Find(const Cells& cells) const {
  const int alike = by_key_.value(KeyOf(cells[kName]), -1);
  const int named = by_name_.value(cells[kName], alike);
  return named >= 0 ? named : by_barcode_.value(BarcodeKey(cells[kBarcode]), -1);
}

QString BringPlanner::Refusal(const Cells& cells, int at) {
  const QString key = KeyOf(cells[kName]);
  if (key.startsWith(u"ИТОГО") || key.startsWith(u"ВСЕГО")) return u"Строка итогов"_s;
  if (cells[kName].isEmpty() && at < 0) return u"Нет наименования"_s;
  if (!cells.fault.isEmpty()) return cells.fault;
  if (const QString fault = FaultOfCode(cells[kBarcode]); !fault.isEmpty()) return fault;
  const int owner = by_barcode_.value(BarcodeKey(cells[kBarcode]), at);
  if (owner != at) {
    return u"Штрихкод %1 уже у товара «%2»"_s.arg(cells[kBarcode],
                                                  goods_[static_cast<size_t>(owner)].name);
  }
  if (at < 0 && !choice_.add_new) return u"Такого товара в справочнике нет"_s;
  return {};
}

// Of two rows of one goods, or of one barcode, the second would undo the first.
QString BringPlanner::TellTwice(const Cells& cells, int at, int number) {
  const QString& name = at < 0 ? cells[kName] : goods_[static_cast<size_t>(at)].name;
  QStringList keys{u"n"_s + KeyOf(name)};
  if (!cells[kBarcode].isEmpty()) keys << u"c"_s + BarcodeKey(cells[kBarcode]);
  for (const QString& key : keys) {
    if (row_of_.contains(key)) {
      return (key[0] == u'n' ? u"Тот же товар уже стоит в строке %1"_s
                             : u"Тот же штрихкод уже стоит в строке %1"_s)
          .arg(row_of_.value(key));
    }
  }
  for (const QString& key : keys) row_of_.insert(key, number);
  return {};
}

void BringPlanner::PlanNew(Cells& cells, BroughtRow& planned) {
  planned.fate = Fate::kNew;
  planned.group = choice_.group;
  if (planned.group.isEmpty()) planned.group = cells[kGroup];
  if (planned.group.isEmpty()) planned.group = heading_;
  if (planned.group.isEmpty()) planned.group = kUsualGroup;
  planned.told = u"Группа «%1»"_s.arg(planned.group);
  if (cells[kPurchase].isEmpty()) {
    cells[kPurchase] = FormatMoney(0);
    planned.told += u"; цены закупа нет"_s;
  }
  planned.goods = {cells[kName], cells[kCountry], cells[kDeclaration], cells[kUnit],
                   cells[kPurchase]};
  planned.extras = {cells[kBarcode], cells[kMinimum] == u"0" ? QString() : cells[kMinimum]};
  if (choice_.TakesSale()) planned.sale = cells[kSale];
}

void BringPlanner::PlanChange(Cells& cells, BroughtRow& planned) {
  planned.goods = goods_[static_cast<size_t>(planned.at)];
  planned.extras = ExtrasOf(extras_, planned.goods.name);
  QStringList changes;
  const auto take = [&](GoodsField field, QString& text, const QString& before) {
    if (cells[field].isEmpty() || cells[field] == before) return;
    changes << u"%1: %2 → %3"_s.arg(TitleOf(field), before.isEmpty() ? u"нет"_s : before,
                                    cells[field]);
    text = cells[field];
  };
  take(kUnit, planned.goods.unit, planned.goods.unit);
  take(kPurchase, planned.goods.price, MoneyText(planned.goods.price));
  take(kCountry, planned.goods.country, planned.goods.country);
  take(kDeclaration, planned.goods.declaration, planned.goods.declaration);
  take(kBarcode, planned.extras.barcode, planned.extras.barcode);
  if (cells[kMinimum] != u"0" || !planned.extras.minimum.isEmpty()) {
    take(kMinimum, planned.extras.minimum, planned.extras.minimum);
    if (planned.extras.minimum == u"0") planned.extras.minimum.clear();
  }
  if (choice_.TakesSale()) take(kSale, planned.sale, sale_.value(planned.goods.name));
  planned.fate = changes.isEmpty() ? Fate::kSame : Fate::kChanged;
  planned.told = changes.join(u"; "_s);
}

}  // namespace kladez
