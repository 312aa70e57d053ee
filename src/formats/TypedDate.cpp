#include "formats/TypedDate.h"

#include <vector>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2199;
constexpr int kYearsBack = 30;  // of the hundred years that two digits may mean

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// The runs of digits, as long as nothing but single marks and blanks stands between them. A mark
// may follow the last run: whoever has written "31.12." is not done yet, and already means a day.
std::optional<std::vector<QStringView>> SplitDigits(QStringView text) {
  std::vector<QStringView> parts;
  bool mark = true;  // none may stand at the beginning
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype begin = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    if (at > begin) {
      parts.push_back(text.sliced(begin, at - begin));
      mark = false;
      continue;
    }
    const bool blank = text[at].isSpace();
    if (!blank && (mark || !u".,/-"_s.contains(text[at]))) return std::nullopt;
    if (!blank) mark = true;
    ++at;
  }
  const bool open_end = mark && parts.size() == 3;
  if (parts.empty() || parts.size() > 3 || open_end) return std::nullopt;
  return parts;
}

// "31", "3112", "311226", "31122026".
std::vector<QStringView> CutByPlaces(QStringView digits) {
  const qsizetype size = digits.size();
  if (size <= 2) return {digits};
  if (size == 4) return {digits.first(2), digits.last(2)};
  if (size == 6 || size == 8) return {digits.first(2), digits.sliced(2, 2), digits.sliced(4)};
  return {};
}

std::optional<int> ReadYear(QStringView digits, QDate today) {
  int year = digits.toInt();
  if (digits.size() == 2) {
    const int first = today.year() - kYearsBack;
    year += first - first % 100;
    if (year < first) year += 100;
  } else if (digits.size() != 4) {
    return std::nullopt;
  }
  if (year < kFirstYear || year > kLastYear) return std::nullopt;
  return year;
}

}  // namespace

bool IsTodayLetter(QStringView text) {
  return text.size() == 1 && u"сСcC"_s.contains(text.front());
}

std::optional<QDate> ReadTypedDate(QStringView text, QDate today) {
  text = text.trimmed();
  if (IsTodayLetter(text)) return today;
  for (const QStringView ending : {u"г.", u"г"}) {
    if (!text.endsWith(ending)) continue;
    text.chop(ending.size());
    break;
  }
  auto parts = SplitDigits(text.trimmed());
  if (!parts) return std::nullopt;
  if (parts->size() == 1) *parts = CutByPlaces(parts->front());
  if (parts->empty() || parts->front().size() > 2) return std::nullopt;
  int month = today.month();
  std::optional<int> year = today.year();
  if (parts->size() > 1) {
    if ((*parts)[1].size() > 2) return std::nullopt;
    month = (*parts)[1].toInt();
  }
  if (parts->size() > 2) year = ReadYear((*parts)[2], today);
  const int day = parts->front().toInt();
  if (!year || !QDate::isValid(*year, month, day)) return std::nullopt;
  return QDate(*year, month, day);
}

}  // namespace kladez
