#include "books/stock/DocumentRegister.h"

#include <algorithm>

#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;

DocumentHead RowHead(const DocumentFormat& format, const ScannedDocument& document) {
  DocumentHead head;
  for (auto field : format.head) head.*field = DecodeText(document.Head(field));
  if (head.date.endsWith(u' ')) head.date.chop(1);
  for (auto amount : {&H::sum, &H::discount, &H::net_sum}) {
    const bool has = std::find(format.head.begin(), format.head.end(), amount) != format.head.end();
    if (has) head.*amount = ToNumberOr(head.*amount);
  }
  return head;
}

}  // namespace

bool RegisterFilter::Passes(QDate date, QDate today) const {
  switch (period) {
    case Period::kMonth:
      return date.month() == month && date.year() == today.year();
    case Period::kYear:
      return QString::number(date.year()) == year;
    case Period::kDay:
      return ShortDateText(date) == ShortDateText(day);
    case Period::kRange:
      return from <= date && date <= to;
  }
  Q_UNREACHABLE();
}

void DocumentRegister::Load(const QString& warehouse, const RegisterFilter& filter, QDate today,
                            bool descending, const Progress& progress) {
  const DocumentFormat& format = FormatOf(kind_);
  constexpr int kFilesBetweenProgress = 64;
  std::vector<RegisterRow> rows;
  TextPool numbers;
  std::vector<int> counts;
  int until_progress = 0;
  QDate first_day;
  QDate last_day;
  heads_.Scan(data_, DocumentDirectory(session_, kind_, warehouse), [&](ScannedDocument& document) {
    if (until_progress-- == 0) {
      until_progress = kFilesBetweenProgress;
      progress.Tell(document.Part());
    }
    const auto number = static_cast<size_t>(numbers.Add(document.Head(&H::number)));
    counts.resize(std::max(counts.size(), number + 1));
    ++counts[number];
    const auto date = document.Date();
    if (!date) return;
    if (first_day.isNull() || *date < first_day) first_day = *date;
    if (last_day.isNull() || *date > last_day) last_day = *date;
    if (filter.Passes(*date, today)) {
      rows.push_back({document.File(), RowHead(format, document)});
    }
  });
  if (descending) std::reverse(rows.begin(), rows.end());
  rows_ = std::move(rows);
  numbers_ = std::move(numbers);
  number_counts_ = std::move(counts);
  first_day_ = first_day;
  last_day_ = last_day;
}

int DocumentRegister::CountOfNumber(const QString& number) {
  const auto place = static_cast<size_t>(numbers_.Add(EncodeText(number)));
  return place < number_counts_.size() ? number_counts_[place] : 0;
}

void DeleteDocument(const DataDir& data, const Session& session, DocumentKind kind,
                    const QString& warehouse, const QString& file, bool reverse) {
  const QString path = DocumentPath(session, kind, warehouse, file);
  const QByteArray bytes = reverse ? data.Read(path) : data.ReadIfAny(path).value_or(QByteArray());
  const Document document = ReadDocument(kind, bytes);
  SaveSet save(data, u"накладная %1 удалена"_s.arg(document.head.number));
  if (reverse) {
    for (const LedgerEffect& effect : BookOf(kind).effects) {
      AppendToLedger(save, LedgerPath(session, WarehouseOf(effect, document.head, warehouse)),
                     ReversalOf(effect, document));
    }
  }
  save.Delete(path);
  save.Commit();
}

}  // namespace kladez
