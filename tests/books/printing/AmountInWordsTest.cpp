#include <gtest/gtest.h>

#include <QStringList>

#include "books/printing/AmountInWords.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct Spelling {
  const char* amount;
  const char* words;
};

class SpellsRoubles : public testing::TestWithParam<Spelling> {};

TEST_P(SpellsRoubles, AsThePaperHasIt) {
  EXPECT_EQ(AmountInWords(QString::fromUtf8(GetParam().amount), RoubleCurrency()).toStdString(),
            GetParam().words);
}

constexpr Spelling kPluralForms[] = {
    {"1234.50", "Одна тысяча двести тридцать четыре рубля 50 копеек"},
    {"5.00", "Пять рублей 00 копеек"},
    {"11.11", "Одиннадцать рублей 11 копеек"},
    {"21.21", "Двадцать один рубль 21 копейка"},
    {"22.02", "Двадцать два рубля 02 копейки"},
    {"12.12", "Двенадцать рублей 12 копеек"},
    {"14.14", "Четырнадцать рублей 14 копеек"},
    {"101.01", "Сто один рубль 01 копейка"},
    {"2000.00", "Две тысячи рублей 00 копеек"},
    {"21000.00", "Двадцать одна тысяча рублей 00 копеек"},
    {"11000.00", "Одиннадцать тысяч рублей 00 копеек"},
    {"1000000.00", "Один миллион рублей 00 копеек"},
    {"2002002.22", "Два миллиона две тысячи два рубля 22 копейки"},
    {"112340567.80",
     "Сто двенадцать миллионов триста сорок тысяч пятьсот шестьдесят семь рублей 80 копеек"},
};
INSTANTIATE_TEST_SUITE_P(PluralForms, SpellsRoubles, testing::ValuesIn(kPluralForms));

constexpr Spelling kDoubleBlankAfterNine[] = {
    {"9.00", "Девять  рублей 00 копеек"},
    {"19.00", "Девятнадцать рублей 00 копеек"},
    {"90.00", "Девяносто рублей 00 копеек"},
    {"999999999.99",
     "Девятьсот девяносто девять  миллионов девятьсот девяносто девять  тысяч девятьсот девяносто "
     "девять  рублей 99 копеек"},
};
INSTANTIATE_TEST_SUITE_P(DoubleBlankAfterNine, SpellsRoubles,
                         testing::ValuesIn(kDoubleBlankAfterNine));

constexpr Spelling kZeroIsNotSpelled[] = {
    {"0", " 0 копеек"},         {"0.00", " 0 копеек"}, {"0.01", " 1 копейка"},
    {"0.05", " 5 копеек"},      {"0.10", "10 копеек"}, {"0.11", "11 копеек"},
    {"0.21", "21 копейка"},     {"", " 0 копеек"},     {"не число", " 0 копеек"},
    {"1e400 руб", " 0 копеек"},
};
INSTANTIATE_TEST_SUITE_P(ZeroIsNotSpelled, SpellsRoubles, testing::ValuesIn(kZeroIsNotSpelled));

// 0.29 * 100 is 28.999999999999996 in the machine: a kopeck would be lost.
constexpr Spelling kNoKopeckIsLost[] = {
    {"0.29", "29 копеек"},
    {"4.35", "Четыре рубля 35 копеек"},
    {"1.10", "Один рубль 10 копеек"},
    {"8.41", "Восемь рублей 41 копейка"},
    {"123456789.07",
     "Сто двадцать три миллиона четыреста пятьдесят шесть тысяч семьсот восемьдесят девять  "
     "рублей 07 копеек"},
};
INSTANTIATE_TEST_SUITE_P(NoKopeckIsLost, SpellsRoubles, testing::ValuesIn(kNoKopeckIsLost));

constexpr Spelling kNineCharactersAreSpelled[] = {
    {"1234567890.00",
     "Сто двадцать три миллиона четыреста пятьдесят шесть тысяч семьсот восемьдесят девять  "
     "рублей 00 копеек"},
    {"-5.00", "Пять рублей 00 копеек"},
    {"-12.34", "Двенадцать рублей 34 копейки"},
    {"-1234.50", "Одна тысяча двести тридцать четыре рубля 50 копеек"},
    {"-0.05", "-5 копеек"},
};
INSTANTIATE_TEST_SUITE_P(NineCharactersAreSpelled, SpellsRoubles,
                         testing::ValuesIn(kNineCharactersAreSpelled));

constexpr Spelling kLenientParse[] = {
    {"1 234.50", "Одна тысяча двести тридцать четыре рубля 50 копеек"},
    {" 7.5 руб.", "Семь рублей 50 копеек"},
    {"12,34", "Двенадцать рублей 00 копеек"},
};
INSTANTIATE_TEST_SUITE_P(LenientParse, SpellsRoubles, testing::ValuesIn(kLenientParse));

// Every amount up to a thousand, put together from a second table of words.
TEST(AmountInWords, EveryAmountUpToAThousandReadsRight) {
  const QStringList ones =
      u" один два три четыре пять шесть семь восемь девять десять одиннадцать"
      " двенадцать тринадцать четырнадцать пятнадцать шестнадцать семнадцать"
      " восемнадцать девятнадцать"_s.split(u' ');
  const QStringList tens =
      u"  двадцать тридцать сорок пятьдесят шестьдесят семьдесят восемьдесят девяносто"_s.split(
          u' ');
  const QStringList hundreds =
      u" сто двести триста четыреста пятьсот шестьсот семьсот восемьсот девятьсот"_s.split(u' ');
  for (int n = 1; n < 1000; ++n) {
    const int low = n % 100;
    QStringList words = {hundreds[n / 100]};
    words << (low >= 20 ? tens[low / 10] : QString()) << ones[low < 20 ? low : low % 10];
    const int last = low < 20 ? low : low % 10;
    words << (last == 1 ? u"рубль"_s : last >= 2 && last <= 4 ? u"рубля"_s : u"рублей"_s);
    QString want = words.join(u' ').simplified();
    want[0] = want[0].toUpper();
    const QString got = AmountInWords(QString::number(n), RoubleCurrency());
    EXPECT_EQ(got.simplified(), QString(want + u" 00 копеек"_s));
  }
}

TEST(AmountInWords, AnotherCurrencyKeepsItsNameAfterZeroAndItsMasculineOnes) {
  const Currency crowns = {
      {u"кр."_s, u"крона"_s, u"кроны"_s, u"крон"_s, u"гр."_s, u"грош"_s, u"гроша"_s, u"грошей"_s}};
  const std::pair<QString, QString> cases[] = {
      {u"0"_s, u"Крон  0 грошей"_s},
      {u"0.05"_s, u"Крон  5 грошей"_s},
      {u"1.01"_s, u"Один крона 01 грош"_s},
      {u"2.22"_s, u"Два кроны 22 гроша"_s},
      {u"1000.12"_s, u"Одна тысяча крон 12 грошей"_s},
  };
  for (const auto& [amount, words] : cases) {
    EXPECT_EQ(AmountInWords(amount, crowns).toStdString(), words.toStdString());
  }
}

TEST(AmountInWords, EmptyFormsOfTheCurrencyPrintNothing) {
  EXPECT_EQ(AmountInWords(u"5.21"_s, Currency()).toStdString(), "Пять  21 ");
  EXPECT_EQ(AmountInWords(u"0"_s, Currency()).toStdString(), "  0 ");
}

TEST(GroupToWords, NamesTheUnitOfItsPosition) {
  const Currency rubles = RoubleCurrency();
  const std::tuple<QString, int, QString> cases[] = {
      {u"000"_s, 1, u""_s},
      {u"000"_s, 2, u""_s},
      {u"000"_s, 3, u"рублей "_s},
      {u"001"_s, 1, u"один миллион "_s},
      {u"002"_s, 1, u"два миллиона "_s},
      {u"001"_s, 2, u"одна тысяча "_s},
      {u"102"_s, 2, u"сто две тысячи "_s},
      {u"011"_s, 2, u"одиннадцать тысяч "_s},
      {u"019"_s, 3, u"девятнадцать рублей "_s},
      {u"109"_s, 3, u"сто девять  рублей "_s},
      {u"010"_s, 1, u"десять миллионов "_s},
      {u"900"_s, 2, u"девятьсот тысяч "_s},
  };
  for (const auto& [group, position, words] : cases) {
    EXPECT_EQ(GroupToWords(group, position, rubles).toStdString(), words.toStdString());
  }
}

}  // namespace
}  // namespace kladez
