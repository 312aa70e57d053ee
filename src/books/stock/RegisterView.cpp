#include "books/stock/RegisterView.h"

#include <algorithm>
#include <numeric>

#include "formats/Dates.h"
#include "formats/NameSearch.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using H = DocumentHead;

bool IsSum(QString DocumentHead::*field) {
  return field == &H::sum || field == &H::discount || field == &H::net_sum;
}

// "12" is the number "0012" too: people leave the noughts out.
bool BeginsNumber(const QString& number, const QString& word) {
  if (number.startsWith(word, Qt::CaseInsensitive)) return true;
  const auto digit = std::find_if(number.begin(), number.end(), [](QChar c) { return c != u'0'; });
  return QStringView(digit, number.end()).startsWith(word, Qt::CaseInsensitive);
}

// `sum` is a number text, `word` what somebody typed of it.
bool IsSumOf(const QString& sum, QString word) {
  if (sum.isEmpty()) return false;
  word.replace(u',', u'.');
  const QString money = MoneyText(sum);
  return word.contains(u'.') ? money.startsWith(word) : money.chopped(3) == word;
}

// A number for what is sorted by its value; names are sorted as texts.
double ValueOf(const DocumentHead& head, QString DocumentHead::*field) {
  if (field == &H::date) {
    return static_cast<double>(ParseDate(head.date).value_or(QDate()).toJulianDay());
  }
  return field == &H::number ? ParseLenient(head.number) : NumberOr(head.*field);
}

}  // namespace

RegisterView::RegisterView(DocumentKind kind, const std::vector<RegisterRow>& rows)
    : kind_(kind), rows_(rows) {
  Show();
}

void RegisterView::TakeRows() {
  parties_.clear();
  Search(text_, nullptr);
}

bool RegisterView::FindsInHead(int row, const QString& word) const {
  const auto place = static_cast<size_t>(row);
  const DocumentHead& head = rows_[place].head;
  if (BeginsNumber(head.number, word) || parties_[place].contains(word)) return true;
  const bool may_be_sum = word.front().isDigit();
  return may_be_sum && (IsSumOf(head.sum, word) || IsSumOf(head.net_sum, word));
}

std::vector<bool> RegisterView::Found(const QStringList& words, const DocumentGoods* goods) const {
  std::vector<bool> found(rows_.size(), true);
  for (const QString& word : words) {
    const std::vector<bool> in_goods = goods == nullptr ? found : goods->RowsWith(word);
    for (size_t i = 0; i < found.size(); ++i) {
      found[i] =
          found[i] && ((goods != nullptr && in_goods[i]) || FindsInHead(static_cast<int>(i), word));
    }
  }
  return found;
}

void RegisterView::Search(const QString& text, const DocumentGoods* goods) {
  text_ = text;
  found_.clear();
  const QStringList words = WordsToFind(text);
  if (!words.isEmpty()) {
    if (parties_.empty()) {
      for (const RegisterRow& row : rows_) {
        parties_.push_back(FoldForWords(QString(row.head.party + u'\n' + row.head.destination)));
      }
    }
    found_ = Found(words, goods);
    const QStringList other = WordsToFind(InOtherLayout(text));
    if (other != words) {
      const std::vector<bool> also = Found(other, goods);
      for (size_t i = 0; i < found_.size(); ++i) found_[i] = found_[i] || also[i];
    }
  }
  Show();
}

void RegisterView::Sort(RegisterOrder order) {
  order_ = order;
  Show();
}

void RegisterView::Show() {
  shown_.clear();
  for (size_t i = 0; i < rows_.size(); ++i) {
    if (found_.empty() || found_[i]) shown_.push_back(static_cast<int>(i));
  }
  if (order_.field != nullptr) SortShown();
}

void RegisterView::SortShown() {
  const auto field = order_.field;
  const auto head = [&](size_t at) -> const DocumentHead& {
    return Row(static_cast<int>(at)).head;
  };
  std::vector<size_t> places;
  if (IsSum(field) || field == &H::date || field == &H::number) {
    std::vector<double> values;
    values.reserve(shown_.size());
    for (size_t i = 0; i < shown_.size(); ++i) values.push_back(ValueOf(head(i), field));
    places.resize(shown_.size());
    std::iota(places.begin(), places.end(), size_t{0});
    std::stable_sort(places.begin(), places.end(),
                     [&](size_t a, size_t b) { return values[a] < values[b]; });
  } else {
    places = PlacesInOrder(shown_.size(), [&](size_t at) { return QStringView(head(at).*field); });
  }
  std::vector<int> sorted;
  sorted.reserve(places.size());
  for (const size_t place : places) sorted.push_back(shown_[place]);
  if (order_.descending) std::reverse(sorted.begin(), sorted.end());
  shown_ = std::move(sorted);
}

int RegisterView::PlaceOf(const QString& file) const {
  const auto found = std::find_if(shown_.begin(), shown_.end(), [&](int row) {
    return rows_[static_cast<size_t>(row)].file == file;
  });
  return found == shown_.end() ? -1 : static_cast<int>(found - shown_.begin());
}

RegisterSums RegisterView::Sums(const std::vector<int>& places) const {
  RegisterSums sums;
  for (const int place : places) {
    const DocumentHead& head = Row(place).head;
    ++sums.count;
    sums.sum += NumberOr(head.sum);
    sums.net_sum += NumberOr(head.*BookOf(kind_).total);
  }
  return sums;
}

RegisterSums RegisterView::Sums() const {
  std::vector<int> all(shown_.size());
  std::iota(all.begin(), all.end(), 0);
  return Sums(all);
}

QString RegisterView::StatusText() const {
  return u"Документов:%1     Сумма:%2"_s.arg(Count()).arg(FormatMoney(Sums().net_sum));
}

}  // namespace kladez
