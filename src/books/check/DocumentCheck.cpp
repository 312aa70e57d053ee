#include "books/check/DocumentCheck.h"

#include <QDate>
#include <algorithm>

#include "books/check/FieldCheck.h"
#include "books/store/Catalogue.h"
#include "formats/Dates.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;
using L = DocumentLine;

// The place of a field in a table of fields; the table's size where it is not there.
template <typename Fields, typename Field>
size_t PlaceOf(const Fields& fields, Field field) {
  return static_cast<size_t>(std::find(fields.begin(), fields.end(), field) - fields.begin());
}

QStringView NameOf(QString L::*field) {
  if (field == &L::quantity) return u"Количество";
  return field == &L::cost ? u"Закупочная цена" : u"Цена";
}

bool IsSame(double told, double counted) { return std::fabs(told - counted) < 0.005; }

}  // namespace

DocumentCheck::DocumentCheck(DocumentKind kind, const QString& directory, int warehouse,
                             DirectoryNames& names, StockCheck& stock, FindingList& findings)
    : kind_(kind),
      format_(FormatOf(kind)),
      directory_(directory),
      warehouse_(warehouse),
      names_(names),
      stock_(stock),
      findings_(findings) {}

QByteArrayView DocumentCheck::Head(QString H::*field) const {
  const size_t place = PlaceOf(format_.head, field);
  return place < head_lines_ ? text_.Lines()[place] : QByteArrayView();
}

int DocumentCheck::HeadLine(QString H::*field) const {
  return static_cast<int>(PlaceOf(format_.head, field)) + 1;
}

void DocumentCheck::Add(const QString& file, QByteArrayView bytes) {
  path_ = directory_ + u'\\' + file;
  CheckFileName(file);
  text_.Read(path_, bytes, findings_);
  head_lines_ = std::min(text_.Lines().size(), format_.head.size());
  if (head_lines_ < format_.head.size()) {
    Tell(0,
         u"Документ обрезан: в начале должно быть строк: %1, есть: %2."_s.arg(format_.head.size())
             .arg(head_lines_));
    return;
  }
  CheckHead();
  CheckLines();
}

void DocumentCheck::CheckFileName(const QString& file) {
  bool good = false;
  const qint64 number = file.chopped(format_.extension.size()).toLongLong(&good);
  if (good && number >= 0) {
    file_numbers_.push_back(number);
  } else {
    Tell(0, u"Имя файла не число: следующий документ получит номер не по порядку."_s);
  }
}

void DocumentCheck::CheckHead() {
  const auto date = ParseDate(Head(&H::date));
  if (!date) {
    Tell(HeadLine(&H::date), u"Дата «"_s + DecodeText(Head(&H::date)).left(40) +
                                 u"» не читается: документа нет ни в списке, ни в отчётах."_s);
  }
  if (Head(&H::number).isEmpty()) {
    Tell(HeadLine(&H::number), u"У документа нет номера."_s);
  } else if (date) {
    CheckNumberStandsOnce(date->year());
  }
  CheckParty(&H::party);
  if (kind_ == DocumentKind::kTransfer) {
    CheckParty(&H::destination);
    return;
  }
  const QByteArrayView closed = Head(&H::closed);
  static const QByteArray yes = EncodeText(u"да");
  static const QByteArray no = EncodeText(u"нет");
  if (closed != yes && closed != no) {
    Tell(HeadLine(&H::closed), u"Вместо «да» или «нет» стоит «"_s + DecodeText(closed).left(40) +
                                   u"»: счет считается закрытым."_s);
  }
}

void DocumentCheck::CheckNumberStandsOnce(int year) {
  const auto [first, is_new] = numbers_.try_emplace({year, Head(&H::number).toByteArray()}, path_);
  if (is_new) return;
  Tell(HeadLine(&H::number),
       u"Номер %1 в %2 году уже стоит в документе %3."_s.arg(
           DecodeText(Head(&H::number)), QString::number(year), first->second.section(u'\\', -1)));
}

void DocumentCheck::CheckParty(QString H::*field) {
  const QByteArrayView name = Head(field);
  if (kind_ == DocumentKind::kTransfer) {
    if (names_.warehouses.contains(DecodeText(name))) return;
    Tell(HeadLine(field),
         u"Склада «"_s + DecodeText(name).left(100) + u"» нет в списке складов."_s);
    return;
  }
  if (name.isEmpty() || name == "-") return;  // "-" is the editors' way to name none
  KnownNames& known = kind_ == DocumentKind::kReceipt ? names_.suppliers : names_.clients;
  known.Use(known.Number(name), path_, HeadLine(field));
}

void DocumentCheck::CheckLines() {
  const auto& lines = text_.Lines();
  const size_t head = format_.head.size();
  const size_t group = format_.line.size();
  const bool transfer = kind_ == DocumentKind::kTransfer;
  const bool posts = transfer || Head(&H::closed) != EncodeText(u"нет");
  const auto warehouse_at = [&](QString H::*field) {
    return static_cast<int>(names_.warehouses.indexOf(DecodeText(Head(field))));
  };
  const int from = transfer ? warehouse_at(&H::party) : warehouse_;
  const int to = transfer ? warehouse_at(&H::destination) : -1;
  double sum = 0;
  for (size_t first = head; first < lines.size(); first += group) {
    const int line = static_cast<int>(first) + 1;
    if (lines.size() - first < group) {
      Tell(line, u"Последняя строка товара обрезана: в ней должно быть строк файла: %1, есть: %2."_s
                     .arg(group)
                     .arg(lines.size() - first));
      break;
    }
    double quantity = 0;
    double one = 0;
    for (size_t i = 0; i < group; ++i) {
      const auto field = format_.line[i];
      if (field == &L::name || field == &L::unit) continue;
      const double number = CheckNumber(lines[first + i], NameOf(field), path_,
                                        line + static_cast<int>(i), findings_);
      if (field == &L::quantity) quantity = number;
      if (field == &L::price) one = number;
    }
    const size_t goods = names_.goods.Number(lines[first]);
    names_.goods.Use(goods, path_, line);
    if (posts) stock_.AddDocumentLine(kind_, from, to, goods, quantity);
    sum += RoundMoney(quantity * one);
  }
  CheckSums(sum);
}

void DocumentCheck::CheckSums(double sum_of_lines) {
  const double sum = CheckNumber(Head(&H::sum), u"Сумма", path_, HeadLine(&H::sum), findings_);
  if (!IsSame(sum, sum_of_lines)) {
    Tell(HeadLine(&H::sum), u"Сумма документа %1, а его строк — %2."_s.arg(
                                FormatMoney(sum), FormatMoney(sum_of_lines)));
  }
  if (kind_ != DocumentKind::kShipment) return;
  const double discount =
      CheckNumber(Head(&H::discount), u"Скидка", path_, HeadLine(&H::discount), findings_);
  const double net =
      CheckNumber(Head(&H::net_sum), u"Сумма со скидкой", path_, HeadLine(&H::net_sum), findings_);
  const double due = RoundMoney(sum - sum * discount / 100);
  if (!IsSame(net, due)) {
    Tell(HeadLine(&H::net_sum), u"Сумма со скидкой %1, а по скидке %2% должно быть %3."_s.arg(
                                    FormatMoney(net), GeneralText(discount), FormatMoney(due)));
  }
}

void DocumentCheck::Finish() {
  std::sort(file_numbers_.begin(), file_numbers_.end());
  QStringList missing;
  for (size_t i = 1; i < file_numbers_.size(); ++i) {
    const qint64 from = file_numbers_[i - 1] + 1;
    const qint64 to = file_numbers_[i] - 1;
    if (from > to) continue;
    missing.append(from == to ? NumberedName(from)
                              : QString(NumberedName(from) + u'–' + NumberedName(to)));
  }
  if (missing.isEmpty()) return;
  constexpr qsizetype kMostTold = 20;
  const QString more = missing.size() > kMostTold ? u" и другие"_s : QString();
  findings_.Add({directory_, 0,
                 u"Нет файлов с номерами: "_s + missing.mid(0, kMostTold).join(u", "_s) + more +
                     u". Эти документы удалены или потеряны."_s});
}

}  // namespace kladez
