#include "formats/Numbers.h"

#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <type_traits>

#include "formats/PlainNumber.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// What a parse has collected for the conversion to double: digits, a point, an exponent.
class Digits {
 public:
  void Add(char16_t c) { text_.append(static_cast<char>(c)); }
  // Nothing for a number too large; one too small is 0.
  std::optional<double> Value() const {
    double value = 0;
    const auto [end, error] = std::from_chars(text_.begin(), text_.end(), value);
    if (error != std::errc::result_out_of_range) return value;
    if (Magnitude() > 0) return std::nullopt;
    return 0;
  }

 private:
  // The power of ten above the first digit that is not 0.
  double Magnitude() const {
    const std::string_view text(text_.data(), static_cast<size_t>(text_.size()));
    const size_t mark = text.find('e');
    const std::string_view mantissa = text.substr(0, mark);
    const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<double>(mantissa.find_first_of("123456789"));
    double exponent = 0;
    if (mark != text.npos) {
      for (const char c : text.substr(mark + 1)) {
        if (c != '-') exponent = std::min(exponent * 10 + (c - '0'), 1e9);
      }
      if (text[mark + 1] == '-') exponent = -exponent;
    }
    return point - first + exponent;
  }

  QVarLengthArray<char, 64> text_;
};

// Both parses walk the characters of either a text or a file's bytes.
template <typename Char>
class Cursor {
 public:
  Cursor(const Char* from, const Char* to) : at_(from), end_(to) {}
  bool AtEnd() const { return at_ == end_; }
  char16_t Now() const {
    if constexpr (std::is_same_v<Char, QChar>) {
      return at_->unicode();
    } else {
      return static_cast<unsigned char>(*at_);
    }
  }
  void Step() { ++at_; }
  void SkipBlanks() {
    while (!AtEnd() && Now() == u' ') Step();
  }
  bool Take(char16_t a, char16_t b) {
    if (AtEnd() || (Now() != a && Now() != b)) return false;
    Step();
    return true;
  }

 private:
  const Char* at_;
  const Char* end_;
};

template <typename Char>
int TakeDigits(Cursor<Char>& in, Digits& out, bool grouped) {
  int count = 0;
  while (!in.AtEnd()) {
    if (IsDigit(in.Now())) {
      out.Add(in.Now());
      ++count;
      in.Step();
    } else if (grouped && count > 0 && in.Now() == u' ') {
      Cursor<Char> ahead = in;
      ahead.SkipBlanks();
      if (ahead.AtEnd() || !IsDigit(ahead.Now())) break;
      in = ahead;
    } else {
      break;
    }
  }
  return count;
}

template <typename Char>
bool TakeMinus(Cursor<Char>& in) {
  const bool minus = in.Take(u'-', u'-');
  if (!minus) in.Take(u'+', u'+');
  return minus;
}

// Digits with a point or without, as a conversion takes them: with a digit on both sides of the
// point. Gives the number of digits that stand there.
template <typename Char>
int TakeMantissa(Cursor<Char>& in, Digits& out, bool grouped) {
  int count = TakeDigits(in, out, grouped);
  if (in.Take(u'.', u'.')) {
    if (count == 0) out.Add(u'0');
    out.Add(u'.');
    const int decimals = TakeDigits(in, out, false);
    if (decimals == 0) out.Add(u'0');
    count += decimals;
  }
  return count;
}

// Digits with at most one point, of any length that is exact.
template <typename Char>
std::optional<double> ParsePlain(Cursor<Char> in) {
  qint64 whole = 0;
  size_t digits = 0;
  size_t before_point = kTens.size();
  for (; !in.AtEnd(); in.Step()) {
    if (IsDigit(in.Now()) && ++digits < kTens.size()) {
      whole = whole * 10 + (in.Now() - u'0');
    } else if (in.Now() == u'.' && before_point == kTens.size()) {
      before_point = digits;
    } else {
      return std::nullopt;
    }
  }
  if (digits == 0) return std::nullopt;
  const size_t decimals = before_point < digits ? digits - before_point : 0;
  return static_cast<double>(whole) / kTens[decimals];
}

template <typename Char>
std::optional<double> ParseStrictly(Cursor<Char> in) {
  if (const auto plain = ParsePlain(in)) return plain;
  Digits digits;
  in.SkipBlanks();
  const bool negative = TakeMinus(in);
  in.SkipBlanks();
  if (TakeMantissa(in, digits, true) == 0) return std::nullopt;
  if (in.Take(u'e', u'E')) {
    digits.Add(u'e');
    if (TakeMinus(in)) digits.Add(u'-');
    if (TakeDigits(in, digits, false) == 0) return std::nullopt;
  }
  in.SkipBlanks();
  if (!in.AtEnd()) return std::nullopt;
  const auto value = digits.Value();
  if (!value) return std::nullopt;
  return negative ? -*value : *value;
}

// The digits of a number rounded to 15 significant ones: 0.d1d2d3... times ten to `exponent`.
struct Decimal {
  bool negative;
  std::string digits;  // no trailing zeros; empty for zero
  int exponent;
};

Decimal ToDecimal(double value) {
  std::array<char, 40> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                    std::chars_format::scientific, 14);
  const std::string text(buffer.data(), result.ptr);
  const auto mark = text.find('e');
  Decimal decimal{value < 0, text.substr(0, 1) + text.substr(2, mark - 2),
                  std::atoi(text.c_str() + mark + 1) + 1};
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  return decimal;
}

// Rounds half away from zero to `places` digits after the point.
void RoundAt(Decimal& decimal, int places) {
  const int keep = decimal.exponent + places;
  if (keep < 0) {
    decimal.digits.clear();
    return;
  }
  if (keep >= static_cast<int>(decimal.digits.size())) return;
  const bool up = decimal.digits[keep] >= '5';
  decimal.digits.resize(keep);
  if (!up) return;
  int i = keep - 1;
  while (i >= 0 && decimal.digits[i] == '9') decimal.digits[i--] = '0';
  if (i >= 0) {
    ++decimal.digits[i];
  } else {
    decimal.digits.insert(decimal.digits.begin(), '1');
    ++decimal.exponent;
  }
}

QString WithTwoDecimals(double value, bool grouped) {
  if (!std::isfinite(value)) return u"0.00"_s;
  Decimal decimal = ToDecimal(value);
  RoundAt(decimal, 2);
  std::string& digits = decimal.digits;
  const bool zero = digits.find_first_not_of('0') == digits.npos;
  if (zero) return u"0.00"_s;
  if (decimal.exponent <= 0) {
    digits.insert(0, static_cast<size_t>(1 - decimal.exponent), '0');
    decimal.exponent = 1;
  }
  const auto whole = static_cast<size_t>(decimal.exponent);
  digits.resize(std::max(digits.size(), whole + 2), '0');
  std::string text = digits.substr(0, whole) + '.' + digits.substr(whole, 2);
  if (grouped) {
    for (int at = static_cast<int>(whole) - 3; at > 0; at -= 3) text.insert(at, 1, ' ');
  }
  if (decimal.negative) text.insert(0, 1, '-');
  return QString::fromLatin1(text);
}

// "0.50", "1234.00": up to 15 digits, all of which count.
bool IsMoneyPicture(QStringView text) {
  const qsizetype point = text.size() - 3;
  if (point < 1 || point > 13 || text[point] != u'.') return false;
  if (text[0] == u'0' && point > 1) return false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (i != point && !IsDigit(text[i].unicode())) return false;
  }
  return true;
}

std::optional<double> ParseTurned(const QString& text, QString* turned) {
  const QChar from = text.contains(u'.') ? u'.' : u',';
  const qsizetype at = text.indexOf(from);
  if (at < 0) return std::nullopt;
  *turned = text;
  (*turned)[at] = from == u'.' ? u',' : u'.';
  return ParseStrict(*turned);
}

}  // namespace

std::optional<double> ParseStrict(QStringView text) {
  return ParseStrictly(Cursor<QChar>(text.begin(), text.end()));
}

std::optional<double> ParseStrict(QByteArrayView bytes) {
  double plain = 0;
  if (ReadPlainNumber(bytes, &plain)) return plain;
  return ParseStrictly(Cursor<char>(bytes.data(), bytes.data() + bytes.size()));
}

double ParseLenient(QStringView text) {
  const QString packed = text.toString().remove(u' ');
  Cursor<QChar> in(packed.cbegin(), packed.cend());
  Digits digits;
  const bool negative = TakeMinus(in);
  if (TakeMantissa(in, digits, false) == 0) return 0;
  if (in.Take(u'e', u'E')) {
    const bool minus = TakeMinus(in);
    if (!in.AtEnd() && IsDigit(in.Now())) {
      digits.Add(u'e');
      if (minus) digits.Add(u'-');
      TakeDigits(in, digits, false);
    }
  }
  const double value = digits.Value().value_or(0);
  return negative ? -value : value;
}

QString ToNumberOr(const QString& text, const QString& otherwise) {
  if (ParseStrict(text)) return text;
  QString turned;
  if (ParseTurned(text, &turned)) return turned;
  return otherwise.isEmpty() ? u"0"_s : otherwise;
}

double NumberOr(QStringView text, double otherwise) {
  if (const auto value = ParseStrict(text)) return *value;
  QString turned;
  return ParseTurned(text.toString(), &turned).value_or(otherwise);
}

double NumberOr(QByteArrayView bytes, double otherwise) {
  double plain = 0;
  if (ReadPlainNumber(bytes, &plain)) return plain;
  if (const auto value = ParseStrict(bytes)) return *value;
  return NumberOr(QString::fromLatin1(bytes), otherwise);
}

QString UngroupedNumber(const QString& text) {
  QString number;
  for (const QChar c : text) {
    if (!c.isSpace()) number += c == u',' ? QChar(u'.') : c;
  }
  return ParseStrict(number) ? number : text;
}

QString FormatMoney(double value) { return WithTwoDecimals(value, false); }

QString MoneyText(const QString& text) {
  // Files are full of prices in the picture already, and a text shared is much cheaper than one
  // made.
  return IsMoneyPicture(text) ? text : FormatMoney(NumberOr(text));
}

QString FormatGrouped(double value) { return WithTwoDecimals(value, true); }

QString FormatLedger(double value) { return WithTwoDecimals(value, false); }

double RoundMoney(double value) {
  // Most amounts are far from the middle between two kopecks: the nearest one is the same then as
  // by the decimal digits, and a whole number by a hundred is the number that its text reads as.
  constexpr double kLarge = 1e9;
  constexpr double kNearMiddle = 1e-3;
  if (std::fabs(value) < kLarge) {
    const double kopecks = value * 100;
    const double whole = std::round(kopecks);
    if (0.5 - std::fabs(kopecks - whole) > kNearMiddle) return whole == 0 ? 0 : whole / 100;
  }
  return ParseStrict(FormatMoney(value)).value_or(0);
}

QString GeneralText(double value) {
  if (value == 0 || !std::isfinite(value)) return u"0"_s;
  const Decimal decimal = ToDecimal(value);
  std::string text = decimal.digits;
  const int size = static_cast<int>(text.size());
  // Asked of the rounded digits: 999999999999999.9 is 1E+15 once it has 15 of them.
  const int exponent = decimal.exponent - 1;
  if (exponent >= 15 || exponent < -15) {
    if (size > 1) text.insert(1, 1, '.');
    text += (exponent < 0 ? "E-" : "E+") + std::to_string(std::abs(exponent));
  } else if (decimal.exponent <= 0) {
    text.insert(0, "0." + std::string(static_cast<size_t>(-decimal.exponent), '0'));
  } else if (decimal.exponent >= size) {
    text.append(static_cast<size_t>(decimal.exponent - size), '0');
  } else {
    text.insert(static_cast<size_t>(decimal.exponent), 1, '.');
  }
  return QString::fromLatin1((decimal.negative ? "-" : "") + text);
}

double RoundGeneral(double value) {
  // A number of up to 15 digits comes back as it is, and most quantities have no more than three
  // decimals.
  constexpr double kDecimals = 1000;
  const double scaled = value * kDecimals;
  if (std::fabs(scaled) < 1e15) {
    const auto whole = static_cast<qint64>(scaled + std::copysign(0.5, scaled));
    if (static_cast<double>(whole) / kDecimals == value) return value;
  }
  std::array<char, 40> buffer;
  const auto text = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                  std::chars_format::scientific, 14);
  double rounded = value;
  std::from_chars(buffer.data(), text.ptr, rounded);
  return rounded;
}

}  // namespace kladez
