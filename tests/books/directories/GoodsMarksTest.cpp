#include <random>

#include "TempData.h"
#include "books/directories/GoodsMarks.h"

namespace kladez {
namespace {

std::vector<GoodsRecord> RowsOf(const QStringList& names) {
  std::vector<GoodsRecord> rows(names.size());
  for (qsizetype i = 0; i < names.size(); ++i) rows[i].name = names[i];
  return rows;
}

// Told as it is: for each name all rows from the first.
std::vector<bool> TickSlowly(const std::vector<GoodsRecord>& rows, const QStringList& names) {
  std::vector<bool> ticks(rows.size());
  for (const QString& name : names) {
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const GoodsRecord& record) {
      return record.name.startsWith(name);
    });
    if (row == rows.end()) break;
    ticks[row - rows.begin()] = true;
  }
  return ticks;
}

TEST(GoodsMarks, TicksTheFirstRowThatBeginsWithTheNameAndStopsAtAnUnknownOne) {
  struct Case {
    const char* fault;
    QStringList names;
    std::vector<bool> ticks;
  };
  const auto rows = RowsOf(u" Чай|Чай чёрный|Чай|Кофе"_lines);
  const Case cases[] = {
      {"a beginning finds a longer name above", {u"Чай"_s}, {false, true, false, false}},
      {"the rest after an unknown name", u"Кофе|Нет|Чай"_lines, {false, false, false, true}},
      {"letter case counts", {u"кофе"_s}, {false, false, false, false}},
      {"a name twice", u"Кофе|Кофе| Чай"_lines, {true, false, false, true}},
      {"no marks", {}, {false, false, false, false}},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.fault);
    EXPECT_EQ(TickRows(rows, test.names), test.ticks);
  }
}

TEST(GoodsMarks, TicksAsTheSearchFromTheFirstRowDoes) {
  std::mt19937 random(7);
  const auto name = [&] {
    QString text;
    for (auto length = random() % 5; length > 0; --length) text += random() % 2 == 0 ? u'а' : u'б';
    return text;
  };
  for (int round = 0; round < 500; ++round) {
    QStringList rows;
    QStringList marks;
    for (int i = 0; i < 12; ++i) rows.append(name());
    for (int i = 0; i < 6; ++i) marks.append(name());
    EXPECT_EQ(TickRows(RowsOf(rows), marks), TickSlowly(RowsOf(rows), marks))
        << rows.join(u',').toStdString() << " / " << marks.join(u',').toStdString();
  }
}

TEST(GoodsMarks, WritesTickedNamesInListOrder) {
  EXPECT_EQ(WriteMarks(RowsOf(u"б|в|а"_lines), {true, false, true}), EncodeLines({u"б"_s, u"а"_s}));
}

TEST(GoodsMarks, MissingFileTicksNothing) {
  TempData temp;
  Session session;
  session.base_path = u"0001\\"_s;
  FileState file;
  EXPECT_EQ(ReadMarks(temp.Data(), session, file), QStringList());
}

}  // namespace
}  // namespace kladez
