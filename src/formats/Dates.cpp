#include "formats/Dates.h"

#include <array>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct MonthNames {
  QStringView name;
  QStringView of_month;
};

constexpr std::array<MonthNames, 12> kMonths = {{{u"Январь", u"января"},
                                                 {u"Февраль", u"февраля"},
                                                 {u"Март", u"марта"},
                                                 {u"Апрель", u"апреля"},
                                                 {u"Май", u"мая"},
                                                 {u"Июнь", u"июня"},
                                                 {u"Июль", u"июля"},
                                                 {u"Август", u"августа"},
                                                 {u"Сентябрь", u"сентября"},
                                                 {u"Октябрь", u"октября"},
                                                 {u"Ноябрь", u"ноября"},
                                                 {u"Декабрь", u"декабря"}}};

QString Padded(int number, int width) { return u"%1"_s.arg(number, width, 10, QLatin1Char('0')); }

// One part of a date from `at` on: `least` to `most` digits.
std::optional<int> TakePart(QStringView text, qsizetype& at, int least, int most) {
  int value = 0;
  int count = 0;
  for (; at < text.size() && count <= most; ++at, ++count) {
    const char16_t c = text[at].unicode();
    if (c < u'0' || c > u'9') break;
    value = value * 10 + (c - u'0');
  }
  if (count < least || count > most) return std::nullopt;
  return value;
}

bool TakePoint(QStringView text, qsizetype& at) { return at < text.size() && text[at++] == u'.'; }

}  // namespace

std::optional<QDate> ParseDate(QStringView text) {
  if (text.endsWith(u' ')) text.chop(1);
  qsizetype at = 0;
  const auto day = TakePart(text, at, 1, 2);
  if (!day || !TakePoint(text, at)) return std::nullopt;
  const auto month = TakePart(text, at, 1, 2);
  if (!month || !TakePoint(text, at)) return std::nullopt;
  const auto year = TakePart(text, at, 4, 4);
  if (!year || at != text.size() || !QDate::isValid(*year, *month, *day)) return std::nullopt;
  return QDate(*year, *month, *day);
}

std::optional<QDate> ParseDate(QByteArrayView bytes) {
  // A scanner reads thousands of heads, so the bytes are widened without a text of their own.
  std::array<char16_t, 11> wide;
  if (bytes.size() > static_cast<qsizetype>(wide.size())) return std::nullopt;
  for (qsizetype i = 0; i < bytes.size(); ++i) wide[i] = static_cast<unsigned char>(bytes[i]);
  return ParseDate(QStringView(wide.data(), bytes.size()));
}

QString DateText(QDate date) {
  return Padded(date.day(), 2) + u'.' + Padded(date.month(), 2) + u'.' + Padded(date.year(), 4);
}

QString ShortDateText(QDate date) {
  return Padded(date.day(), 2) + u'.' + Padded(date.month(), 2) + u'.' +
         Padded(date.year() % 100, 2);
}

QString BackupDateText(QDate date) { return ShortDateText(date).replace(u'.', u'-'); }

QString LongDateText(QDate date) {
  return Padded(date.day(), 2) + u' ' + kMonths.at(date.month() - 1).of_month.toString() + u' ' +
         Padded(date.year(), 4);
}

QString MonthName(int month) { return kMonths.at(month - 1).name.toString(); }

}  // namespace kladez
