#include "books/printing/AmountInWords.h"

#include <array>

#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

using Words = std::array<QStringView, 10>;

// Two blanks after the nine: every printed amount has had them.
constexpr Words kOnes = {u"",      u"один ",  u"два ",  u"три ",    u"четыре ",
                         u"пять ", u"шесть ", u"семь ", u"восемь ", u"девять  "};
constexpr Words kTeens = {u"десять ",       u"одиннадцать ", u"двенадцать ",  u"тринадцать ",
                          u"четырнадцать ", u"пятнадцать ",  u"шестнадцать ", u"семнадцать ",
                          u"восемнадцать ", u"девятнадцать "};
constexpr Words kTens = {u"",
                         u"",
                         u"двадцать ",
                         u"тридцать ",
                         u"сорок ",
                         u"пятьдесят ",
                         u"шестьдесят ",
                         u"семьдесят ",
                         u"восемьдесят ",
                         u"девяносто "};
constexpr Words kHundreds = {u"",         u"сто ",      u"двести ",  u"триста ",    u"четыреста ",
                             u"пятьсот ", u"шестьсот ", u"семьсот ", u"восемьсот ", u"девятьсот "};

// Nominative singular, genitive singular, genitive plural.
constexpr std::array<QStringView, 3> kMillions = {u"миллион ", u"миллиона ", u"миллионов "};
constexpr std::array<QStringView, 3> kThousands = {u"тысяча ", u"тысячи ", u"тысяч "};

// The main unit's forms stand in lines 2 to 4 of the currency, the fraction's in lines 6 to 8.
constexpr int kMainUnit = 1;
constexpr int kFraction = 5;

// The word of a digit, nothing for any other character.
QStringView WordOf(const Words& words, QChar digit) {
  return digit >= u'0' && digit <= u'9' ? words[digit.unicode() - u'0'] : QStringView();
}

QStringView OnesWord(QChar tens, QChar ones, int position) {
  if (tens == u'1') return WordOf(kTeens, ones);
  if (position == 2 && ones == u'1') return u"одна ";
  if (position == 2 && ones == u'2') return u"две ";
  return WordOf(kOnes, ones);
}

// 0, 1 or 2: the form of a noun after a number that ends in these characters.
int FormAfter(QChar tens, QChar ones) {
  if (tens == u'1') return 2;
  if (ones == u'1') return 0;
  return ones >= u'2' && ones <= u'4' ? 1 : 2;
}

// The blank in the place of a sign makes two characters of an amount under ten kopecks.
QString KopecksOf(const QString& amount) {
  const QString kopecks = GeneralText(ParseLenient(amount) * 100);
  return kopecks.startsWith(u'-') ? kopecks : u' ' + kopecks;
}

QString WholeOf(const QString& kopecks) { return kopecks.chopped(2).trimmed(); }

constexpr int kSpelledDigits = 9;

}  // namespace

QString GroupToWords(QStringView group, int position, const Currency& currency) {
  const QChar hundreds = group[0];
  const QChar tens = group[1];
  const QChar ones = group[2];
  const int form = FormAfter(tens, ones);
  const bool zero = group == u"000";
  QString words = WordOf(kHundreds, hundreds).toString();
  words += WordOf(kTens, tens);
  words += OnesWord(tens, ones, position);
  if (position == 3) {
    words += currency.forms[kMainUnit + form] + u' ';
  } else if (!zero) {
    words += position == 1 ? kMillions[form] : kThousands[form];
  }
  return words;
}

QString AmountInWords(const QString& amount, const Currency& currency) {
  const QString kopecks = KopecksOf(amount);
  const QString fraction = kopecks.right(2);
  const QString whole = WholeOf(kopecks).rightJustified(kSpelledDigits, u'0');

  QString words;
  for (int position = 1; position <= 3; ++position) {
    words += GroupToWords(QStringView(whole).mid(3 * (position - 1), 3), position, currency);
  }
  words[0] = words[0].toUpper();
  const QString& unit = currency.forms[kFraction + FormAfter(fraction[0], fraction[1])];
  // A capital "Р" can only be the unit's own name after a zero, and a zero is not spelled. With a
  // currency of another first letter the name stays.
  if (words.startsWith(u'Р')) words.clear();
  return words + fraction + u' ' + unit;
}

bool WordsAreCut(const QString& amount) {
  // A sign stands among the digits and pushes the last of them out.
  return WholeOf(KopecksOf(amount)).size() > kSpelledDigits;
}

}  // namespace kladez
