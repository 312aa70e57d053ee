#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "formats/Numbers.h"

namespace kladez {
namespace {

struct Case {
  const char* text;
  std::optional<double> value;
};

QString Text(const char* text) { return QString::fromUtf8(text); }

TEST(Numbers, StrictParseTakesWhatIsANumberAndNothingElse) {
  const Case cases[] = {
      {"0", 0},
      {"12", 12},
      {"12.5", 12.5},
      {".5", 0.5},
      {"5.", 5},
      {"  7  ", 7},
      {"-5", -5},
      {"- 5", -5},
      {"-   5.25 ", -5.25},
      {"+5", 5},
      {"+ 5", 5},
      {"007", 7},
      {"1 234.50", 1234.5},
      {"1  2 3", 123},
      {"1e3", 1000},
      {"1E+3", 1000},
      {"2.5e-2", 0.025},
      {".5e1", 5},
      {"1e-400", 0},
      {"123456789012345678901234567890", 1.2345678901234568e29},
      {"", {}},
      {" ", {}},
      {".", {}},
      {"-", {}},
      {"-.", {}},
      {"--5", {}},
      {"- -5", {}},
      {"+-5", {}},
      {"5-", {}},
      {"1.2.3", {}},
      {"1. 5", {}},
      {"1 .5", {}},
      {"1.5 5", {}},
      {"1,5", {}},
      {"1e", {}},
      {"1e+", {}},
      {"e5", {}},
      {"1e5.5", {}},
      {"1 e5", {}},
      {"0x10", {}},
      {"&H10", {}},
      {"5р", {}},
      {"5 руб.", {}},
      {"$5", {}},
      {"nan", {}},
      {"inf", {}},
      {"\t5", {}},
      {"5\n", {}},
      {"\xC2\xA0"
       "5",
       {}},
      {"1\xC2\xA0"
       "234",
       {}},
      {"٣", {}},
      {"1e400", {}},
      {"0.5e400", {}},
      {"-1e400", {}},
      {"0.001e309", 1e306},
      {"1e99999999999999999999", {}},
      {"1e-99999999999999999999", 0},
      {"0e99999999999999999999", 0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ParseStrict(Text(c.text)), c.value) << '"' << c.text << '"';
  }
}

// Files are scanned as bytes; both roads must agree on everything a file can hold.
TEST(Numbers, BytesAndTextParseAlike) {
  for (const char* text : {"- 5", "1 234.50", "1,5", "1.2.3", "", "5e",
                           "\xE0"
                           "5",
                           "5\xA0"}) {
    const QByteArray bytes(text);
    EXPECT_EQ(ParseStrict(QByteArrayView(bytes)), ParseStrict(QString::fromLatin1(bytes))) << text;
    EXPECT_EQ(NumberOr(QByteArrayView(bytes), 7), NumberOr(QString::fromLatin1(bytes), 7)) << text;
  }
  std::mt19937 random(20261124);
  for (int i = 0; i < 20'000; ++i) {
    QByteArray bytes;
    for (size_t n = random() % 11; n > 0; --n) bytes.append("0123456789.5927/:- ,e"[random() % 21]);
    EXPECT_EQ(ParseStrict(QByteArrayView(bytes)), ParseStrict(QString::fromLatin1(bytes)))
        << bytes.constData();
  }
}

TEST(Numbers, ManyDigitsAreReadWithoutLimitOrHang) {
  const QByteArray zeros(1'000'000, '0');
  const auto parse = [](const QByteArray& bytes) { return ParseStrict(QByteArrayView(bytes)); };
  EXPECT_EQ(parse(zeros + "12"), 12);
  EXPECT_EQ(parse("0." + zeros + "1"), 0);
  EXPECT_EQ(parse("0." + zeros + "1e1000001"), 1);
  EXPECT_EQ(parse("1" + zeros), std::nullopt);
  EXPECT_EQ(parse("00" + zeros + "1e400"), std::nullopt);
  EXPECT_EQ(ParseLenient(QString(1'000'000, u' ').append(u'3')), 3);
}

TEST(Numbers, LenientParseTakesTheNumberAtTheBeginning) {
  const Case cases[] = {
      {"12.5", 12.5},
      {"1 2 3", 123},
      {"12abc", 12},
      {"12 шт.", 12},
      {"1,5", 1},
      {"1.5.7", 1.5},
      {"- 5", -5},
      {"+5", 5},
      {".5", 0.5},
      {"5.", 5},
      {"1e2", 100},
      {"1e", 1},
      {"1e+", 1},
      {"1 e 2", 100},
      {"1e2e3", 100},
      {"2e-1x", 0.2},
      {"", 0},
      {"abc", 0},
      {".", 0},
      {"-", 0},
      {"--5", 0},
      {"1e400", 0},
      {"-1e400", 0},
      {"0.1e400", 0},
      {"\t5", 0},
      {"&H1F", 0},
      {"5\xC2\xA0"
       "5",
       5},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ParseLenient(Text(c.text)), *c.value) << '"' << c.text << '"';
  }
}

TEST(Numbers, ToNumberOrReadsFilesOfBothSeparators) {
  const struct {
    const char* text;
    const char* otherwise;
    const char* result;
  } cases[] = {
      {"1.5", "", "1.5"},
      {" 1 234.5 ", "", " 1 234.5 "},  // a number is handed back as it stands
      {"- 5", "", "- 5"},
      {"1,5", "", "1.5"},
      {"- 1,5", "", "- 1.5"},
      {"1 234,50", "", "1 234.50"},
      {",5", "", ".5"},
      {"5,", "", "5."},
      {"1,5,5", "", "0"},
      {"1.5.5", "", "0"},
      {"1.234,5", "", "0"},  // the point is turned, not the comma
      {"1,234.5", "", "0"},
      {"- -5", "", "0"},
      {"", "", "0"},
      {"abc", "", "0"},
      {"abc", "7", "7"},
      {"", "нет", "нет"},
      {"0", "7", "0"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ToNumberOr(Text(c.text), Text(c.otherwise)).toStdString(), c.result) << c.text;
  }
}

TEST(Numbers, NumberOrIsToNumberOrAsANumber) {
  EXPECT_EQ(NumberOr(u"1,5"), 1.5);
  EXPECT_EQ(NumberOr(u"- 1,5"), -1.5);
  EXPECT_EQ(NumberOr(u"abc"), 0);
  EXPECT_EQ(NumberOr(u"abc", 7), 7);
  EXPECT_EQ(NumberOr(u"1.234,5", 7), 7);
  EXPECT_EQ(NumberOr(QByteArrayView("1,5"), 7), 1.5);
}

}  // namespace
}  // namespace kladez
