#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "formats/Numbers.h"

namespace kladez {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(NumberText, MoneyRoundsHalfAwayFromZeroOnTheDecimalDigits) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {0, "0.00"},
      {-0.0, "0.00"},
      {5, "5.00"},
      {0.5, "0.50"},
      {0.05, "0.05"},
      {0.004, "0.00"},
      {0.005, "0.01"},
      {0.0049999999999999999, "0.01"},  // 0.005 at 15 digits
      {1.005, "1.01"},                  // binary 1.00499999999999989...
      {2.675, "2.68"},
      {1.115, "1.12"},
      {8.345, "8.35"},
      {0.125, "0.13"},
      {-0.125, "-0.13"},
      {-1.005, "-1.01"},
      {-0.001, "0.00"},
      {-0.0049, "0.00"},
      {-0.005, "-0.01"},
      {0.995, "1.00"},
      {9.995, "10.00"},
      {99.995, "100.00"},
      {999999.995, "1000000.00"},
      {0.1 + 0.2, "0.30"},
      {1234.5, "1234.50"},
      {1234567.891, "1234567.89"},
      {123456789012.345, "123456789012.35"},
      {1e15, "1000000000000000.00"},
      {1e20, "100000000000000000000.00"},
      {1e-300, "0.00"},
      {kInfinity, "0.00"},
      {-kInfinity, "0.00"},
      {std::nan(""), "0.00"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatMoney(c.value).toStdString(), c.text) << c.value;
    EXPECT_EQ(FormatLedger(c.value).toStdString(), c.text) << c.value;
  }
}

TEST(NumberText, GroupsAreOfThreeDigitsPartedByOneBlank) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {0, "0.00"},
      {12.5, "12.50"},
      {999.994, "999.99"},
      {999.995, "1 000.00"},
      {1234.5, "1 234.50"},
      {123456, "123 456.00"},
      {-1234.5, "-1 234.50"},
      {-123456, "-123 456.00"},
      {1234567.891, "1 234 567.89"},
      {-0.001, "0.00"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatGrouped(c.value).toStdString(), c.text) << c.value;
  }
}

TEST(NumberText, RoundMoneyIsWhatThePictureReadsBackAs) {
  EXPECT_EQ(RoundMoney(1.005), 1.01);
  EXPECT_EQ(RoundMoney(-0.125), -0.13);
  EXPECT_EQ(RoundMoney(0.1 + 0.2), 0.3);
  EXPECT_FALSE(std::signbit(RoundMoney(-0.001)));
}

TEST(NumberText, GeneralTextHasFifteenDigitsAndNoExponentInBetween) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {120, "120"},
      {-7, "-7"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {2.0 / 3, "0.666666666666667"},
      {100.0 / 3, "33.3333333333333"},
      {1234.5, "1234.5"},
      {0.05, "0.05"},
      {-0.00012, "-0.00012"},
      {123456789012345, "123456789012345"},
      {999999999999999, "999999999999999"},
      {999999999999999.9, "1E+15"},  // 15 digits round it up
      {1e14, "100000000000000"},
      {1e15, "1E+15"},
      {1.5e15, "1.5E+15"},
      {-1.25e20, "-1.25E+20"},
      {1e-15, "0.000000000000001"},
      {1.5e-15, "0.0000000000000015"},
      {9.9e-16, "9.9E-16"},
      {1e-16, "1E-16"},
      {1e100, "1E+100"},
      {kInfinity, "0"},
      {std::nan(""), "0"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(GeneralText(c.value).toStdString(), c.text) << c.value;
  }
}

// Whatever a writer makes of a number, the strict parse of the readers takes.
TEST(NumberText, EveryTextOfANumberIsReadAgain) {
  double value = 1.23456789012345e-20;
  for (int i = 0; i < 60; ++i, value *= -9.87) {
    EXPECT_NEAR(*ParseStrict(GeneralText(value)) / value, 1, 1e-14) << value;
    ASSERT_TRUE(ParseStrict(FormatMoney(value))) << value;
    EXPECT_EQ(ParseStrict(FormatMoney(value)), ParseStrict(FormatGrouped(value))) << value;
  }
}

// The short cut for texts in the picture already must not let others through as they stand.
TEST(NumberText, MoneyOfATextIsThePictureOfItsNumber) {
  for (const char16_t* text :
       {u"0.50", u"12.00", u"007.00", u"00.10", u"-0.00", u"-1.50", u".50", u"1.5", u"1.500", u"5",
        u"1,25", u"1 200.00", u"", u"нет", u"12345678901234567.00", u"1.0e", u"9999999999999.99"}) {
    const QString price = QString::fromUtf16(text);
    EXPECT_EQ(MoneyText(price).toStdString(), FormatMoney(NumberOr(price)).toStdString())
        << price.toStdString();
  }
}

TEST(NumberText, ASumKeptAsTextIsTheSumRoundedLikeText) {
  EXPECT_EQ(RoundGeneral(RoundGeneral(0.1 + 0.2) - 0.3), 0);
  for (const double value : {0.1 + 0.2, 5.0, -1e14, 1e15, 123456789012345678.0, -2.0 / 3, 1e-20,
                             999999999999999.9, 0.1 + 1e9}) {
    EXPECT_EQ(RoundGeneral(value), ParseStrict(GeneralText(value))) << value;
  }
  // Sums as ledgers have them, with all numbers of decimals.
  std::mt19937_64 random(2026);
  for (int i = 0; i < 20'000; ++i) {
    const double value = static_cast<double>(random() >> (11 + i % 50)) / std::pow(10, i % 12) +
                         static_cast<double>(random() % 1000) / 1000;
    ASSERT_EQ(RoundGeneral(value), ParseStrict(GeneralText(value))) << value;
  }
}

TEST(NumberText, PlainDigitsReadAsTheNearestDouble) {
  std::mt19937_64 random(2026);
  for (int i = 0; i < 20'000; ++i) {
    std::string text = std::to_string(random() >> (i % 60));
    if (i % 3 != 0) text.insert(random() % (text.size() + 1), ".");
    ASSERT_EQ(ParseStrict(QByteArrayView(text)), std::strtod(text.c_str(), nullptr)) << text;
  }
}

}  // namespace
}  // namespace kladez
