#include "books/check/ListCheck.h"

#include <QDir>
#include <algorithm>

#include "books/check/FieldCheck.h"
#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"
#include "formats/Ordering.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr size_t kGoodsLines = 5;  // of an item; the lines of records as their formats tell them
constexpr size_t kLedgerLines = 3;
constexpr size_t kPriceLines = 4;
constexpr size_t kCurrencyLines = 8;

int LineNumber(size_t place) { return static_cast<int>(place) + 1; }

QString Quoted(QByteArrayView name) { return u'«' + DecodeText(name).left(200) + u'»'; }

}  // namespace

std::optional<QByteArray> ListCheck::Read(const QString& file) {
  try {
    ++files_;
    return data_.Read(base_ + file);
  } catch (const std::filesystem::filesystem_error& error) {
    Tell(file, 0,
         ErrorText(error).section(u'\n', 0, 0) + u": "_s + ErrorText(error).section(u'\n', -1) +
             u'.');
    return std::nullopt;
  }
}

void ListCheck::Tell(const QString& file, int line, const QString& text, Repair repair) {
  findings_.Add({file, line, text, repair});
}

bool ListCheck::ReadLines(const QString& file) {
  auto bytes = Read(file);
  if (!bytes) return false;
  bytes_ = std::move(*bytes);
  lines_.Read(file, bytes_, findings_);
  count_ = lines_.FilledLines();
  return true;
}

template <typename Visit>
void ListCheck::ForEachRecord(const QString& file, size_t size, bool groups, Visit&& visit) {
  size_t first = 0;
  while (first < Count()) {
    if (groups && Line(first).startsWith(' ')) {
      visit(first);
      ++first;
      continue;
    }
    // The last fields of a record may be empty.
    if (lines_.Lines().size() - first < size) {
      Tell(file, LineNumber(first),
           u"Запись %1 обрезана: в ней должно быть строк: %2, есть: %3."_s.arg(Quoted(Line(first)))
               .arg(size)
               .arg(lines_.Lines().size() - first));
      return;
    }
    visit(first);
    first += size;
  }
  if (first < lines_.Lines().size()) {
    Tell(file, LineNumber(first),
         u"В конце файла есть пустые строки: список показывает их записями без названия."_s,
         Repair::kEmptyEnd);
  }
}

void ListCheck::CheckGoods(KnownNames& goods) {
  const QString file = files::kGoods.toString();
  if (!ReadLines(file)) return;
  ForEachRecord(file, kGoodsLines, true, [&](size_t first) {
    const QByteArrayView name = Line(first);
    if (name.startsWith(' ')) return;
    if (name.isEmpty()) Tell(file, LineNumber(first), u"У товара нет названия."_s);
    if (!goods.Add(name)) {
      Tell(file, LineNumber(first),
           u"Товар %1 стоит в справочнике не один раз: цена и остаток считаются по первому."_s.arg(
               Quoted(name)));
    }
    CheckNumber(Line(first + kGoodsLines - 1), u"Цена", file, LineNumber(first + kGoodsLines - 1),
                findings_);
  });
}

void ListCheck::CheckParties(PartyKind kind, KnownNames& names) {
  const QString file = PartyPath(kind).toString();
  if (!ReadLines(file)) return;
  ForEachRecord(file, FieldsOf(kind).size(), false, [&](size_t first) {
    const QByteArrayView name = Line(first);
    if (name.isEmpty()) Tell(file, LineNumber(first), u"У записи нет названия."_s);
    if (!names.Add(name)) {
      Tell(file, LineNumber(first),
           u"Название %1 стоит не один раз: в документы попадают реквизиты первого."_s.arg(
               Quoted(name)));
    }
  });
}

void ListCheck::CheckWarehouses(QStringList& warehouses) {
  const QString file = files::kWarehouses.toString();
  if (!ReadLines(file)) return;
  ForEachRecord(file, 1, false, [&](size_t place) {
    const QString name = DecodeText(Line(place));
    if (warehouses.contains(name)) {
      Tell(file, LineNumber(place), u"Склад «%1» стоит в списке не один раз."_s.arg(name),
           Repair::kDoubleWarehouse);
      return;
    }
    if (!IsPlainTreePath(name + u'\\')) {
      Tell(file, LineNumber(place),
           u"Склада с названием «%1» быть не может."_s.arg(name.left(200)));
      return;
    }
    warehouses.append(name);
    if (!data_.DirectoryExists(base_ + name)) {
      Tell(file, LineNumber(place), u"У склада «%1» нет папки."_s.arg(name),
           Repair::kMakeWarehouse);
    }
  });
}

void ListCheck::CheckFolders(const QStringList& warehouses) {
  QStringList known;
  for (const QStringView name : files::kDirectories) known.append(FoldCase(name));
  for (const QString& name : warehouses) known.append(FoldCase(name));
  const QDir base(data_.Resolve(base_));
  for (const QString& name : base.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    if (known.contains(FoldCase(name))) continue;
    if (!data_.FileExists(base_ + name + u'\\' + files::kLedger)) continue;
    Tell(name, 0, u"Папка склада, которого нет в списке складов."_s, Repair::kListWarehouse);
  }
}

void ListCheck::CheckCurrency() {
  const QString file = files::kCurrency.toString();
  if (!ReadLines(file) || lines_.Lines().size() == kCurrencyLines) return;
  Tell(file, 0,
       u"Слов основной валюты должно быть %1, а есть %2: сумма прописью будет без слов."_s
           .arg(kCurrencyLines)
           .arg(lines_.Lines().size()));
}

void ListCheck::CheckMarks(const KnownNames& goods) {
  const QString file = files::kMarks.toString();
  if (!ReadLines(file)) return;
  QStringList names;
  for (size_t number = 0; number < goods.Count(); ++number) {
    if (goods.IsKnown(number)) names.append(goods.Text(number));
  }
  std::sort(names.begin(), names.end());
  for (size_t place = 0; place < lines_.Lines().size(); ++place) {
    const QString name = DecodeText(Line(place));
    if (name.startsWith(u' ')) continue;  // a group may be ticked
    const auto at = std::lower_bound(names.begin(), names.end(), name);
    if (at != names.end() && at->startsWith(name)) continue;
    Tell(file, LineNumber(place),
         u"Отмечен товар «%1», которого нет в справочнике: отметки после него не видны."_s.arg(
             name.left(200)),
         Repair::kUnknownMarks);
  }
}

void ListCheck::CheckLedger(const QString& warehouse, int place, KnownNames& goods,
                            StockCheck& stock) {
  const QString file = warehouse + u'\\' + files::kLedger;
  if (!ReadLines(file)) return;
  ForEachRecord(file, kLedgerLines, true, [&](size_t first) {
    const QByteArrayView name = Line(first);
    if (name.startsWith(' ')) return;
    const size_t number = goods.Number(name);
    goods.Use(number, file, LineNumber(first));
    stock.AddLedgerRecord(
        place, number,
        CheckNumber(Line(first + 1), u"Количество", file, LineNumber(first + 1), findings_));
  });
}

void ListCheck::CheckPrices(const QString& warehouse, KnownNames& goods) {
  const QString names_file = warehouse + u'\\' + files::kPriceNames;
  const QString folder = warehouse + u'\\' + files::kPrices;
  if (!ReadLines(names_file)) return;
  const size_t names = Count();
  QStringList listed;
  IgnoreErrors([&] { listed = data_.List(base_ + folder, files::kPriceExtension); });
  if (static_cast<size_t>(listed.size()) < names) {
    Tell(names_file, 0,
         u"Прайс-листов в списке %1, а файлов с ценами %2: последние нельзя сохранить."_s.arg(names)
             .arg(listed.size()));
  }
  for (const QString& file : listed) CheckPriceRows(folder + u'\\' + file, goods);
}

void ListCheck::CheckPriceRows(const QString& file, KnownNames& goods) {
  if (!ReadLines(file)) return;
  ForEachRecord(file, kPriceLines, true, [&](size_t first) {
    const QByteArrayView name = Line(first);
    if (name.startsWith(' ')) return;
    if (!goods.Contains(name)) {
      const auto nearest = goods.Nearest(DecodeText(name));
      Tell(file, LineNumber(first),
           u"Цена товара %1, которого нет в справочнике: её не видно.%2"_s.arg(
               Quoted(name), nearest ? u" Похоже на «"_s + *nearest + u"»."_s : QString()),
           Repair::kUnknownPrices);
    }
    CheckNumber(Line(first + kPriceLines - 1), u"Цена", file, LineNumber(first + kPriceLines - 1),
                findings_);
  });
}

}  // namespace kladez
