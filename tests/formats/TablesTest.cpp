#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <map>

#include "formats/tables/Table.h"
#include "formats/tables/TableTexts.h"
#include "workbook/Workbook.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

Table Sample() {
  return {u"Остатки: \"Главный\""_s,
          u"на 05.03.2026"_s,
          {{u"Наименование"_s},
           {u"Дата"_s, CellKind::kDate},
           {u"Кол-во"_s, CellKind::kNumber},
           {u"Сумма"_s, CellKind::kMoney, true},
           {u"Сумма"_s, CellKind::kNumber, true}},
          {{{u"Без группы"_s, u"05.03.2026 "_s, u"- 5"_s, u"0.10"_s, u"1.5"_s}},
           {{u" Чай <&>"_s}, true},
           {{u"\"Ассам\"; 100 г"_s, u"вчера"_s, u"нет"_s, u"1 234.20"_s, u"2"_s}},
           {{u"=1+1\tи\nещё"_s, {}, u"7"_s}}}};
}

TEST(Tables, GoAsTextWithADecimalComma) {
  EXPECT_EQ(TableAsTabs(Sample(), false).toStdString(),
            "Без группы\t05.03.2026\t-5\t0,10\t1,5\n Чай <&>\t\t\t\t\n"
            "\"Ассам\"; 100 г\tвчера\tнет\t1234,20\t2\n=1+1 и ещё\t\t7\t\t");
  EXPECT_EQ(TableAsTabs(Sample(), true).section(u'\n', 0, 0),
            u"Наименование\tДата\tКол-во\tСумма\tСумма"_s);
  EXPECT_EQ(TableAsCsv(Sample()).toStdString(),
            "\xEF\xBB\xBFНаименование;Дата;Кол-во;Сумма;Сумма\r\n"
            "Без группы;05.03.2026;-5;0,10;1,5\r\n Чай <&>;;;;\r\n"
            "\"\"\"Ассам\"\"; 100 г\";вчера;нет;1234,20;2\r\n\"=1+1\tи\nещё\";;7;;\r\n"
            "Итого;;;1234,30;3,5\r\n");
  const QByteArray json = TableAsJson(Sample());
  for (const char* part :
       {"\"group\": \"Чай <&>\"", "\"Дата\": \"2026-03-05\"", "\"Кол-во\": -5", "\"Сумма\": 1234.2",
        "\"Сумма 2\": 3.5", "\"Дата\": \"вчера\"", "\"group\": \"\""}) {
    EXPECT_TRUE(json.contains(part)) << part << json.toStdString();
  }
}

TEST(Tables, KindsAreGuessedFromAllCells) {
  const std::vector<TableRow> rows = Sample().rows;
  EXPECT_EQ(GuessKind(rows, 1, false), CellKind::kText);  // "вчера"
  EXPECT_EQ(GuessKind({rows[0], rows[1], rows[3]}, 1, false), CellKind::kDate);
  EXPECT_EQ(GuessKind(rows, 3, true), CellKind::kMoney);
  EXPECT_EQ(GuessKind(rows, 4, true), CellKind::kNumber);
  EXPECT_EQ(GuessKind({}, 0, false), CellKind::kText);
  EXPECT_EQ(GuessKind({{{u"05.03.26"_s}}, {{u"31.12.99"_s}}}, 0, false), CellKind::kDate);
  EXPECT_EQ(GuessKind({{{u"05.03.26"_s}}, {{u"45.03.26"_s}}}, 0, false), CellKind::kText);
  EXPECT_EQ(DateOfCell(CellKind::kDate, u"31.12.99"_s), QDate(1999, 12, 31));
}

// The files inside a workbook.
std::map<std::string, QByteArray> Unpacked(const QByteArray& bytes) {
  std::map<std::string, QByteArray> files;
  archive* reader = archive_read_new();
  archive_read_support_format_zip(reader);
  EXPECT_EQ(archive_read_open_memory(reader, bytes.data(), static_cast<size_t>(bytes.size())),
            ARCHIVE_OK);
  for (archive_entry* entry; archive_read_next_header(reader, &entry) == ARCHIVE_OK;) {
    QByteArray& file = files[archive_entry_pathname(entry)];
    char piece[4096];
    for (la_ssize_t got; (got = archive_read_data(reader, piece, sizeof(piece))) > 0;) {
      file.append(piece, static_cast<qsizetype>(got));
    }
  }
  archive_read_free(reader);
  return files;
}

TEST(Tables, WorkbookHoldsNumbersDatesGroupsAndFormulas) {
  const auto files = Unpacked(WorkbookOf(Sample()));
  ASSERT_TRUE(files.contains("xl/worksheets/sheet1.xml"));
  const QByteArray sheet = files.at("xl/worksheets/sheet1.xml");
  EXPECT_TRUE(files.at("xl/workbook.xml").contains("Остатки \"Главный\"") ||
              files.at("xl/workbook.xml").contains("Остатки &quot;Главный&quot;"));
  for (const char* part :
       {"ySplit=\"4\"", "state=\"frozen\"", "<v>46086</v>", "<v>-5</v>", "<v>1234.2</v>",
        "outlineLevel=\"1\"", "<f>SUM(D5:D8)</f><v>1234.3</v>", "<f>SUM(E5:E8)</f><v>3.5</v>",
        "Чай &lt;&amp;&gt;</t>", "summaryBelow=\"0\"", ">=1+1", "вчера", "Итого"}) {
    EXPECT_TRUE(sheet.contains(part)) << part << '\n' << sheet.toStdString();
  }
  EXPECT_EQ(sheet.count("outlineLevel=\"1\""), 2);  // not the row above the first group
  EXPECT_EQ(sheet.count("<f>"), 2);
}

TEST(Tables, AnEmptyOrHugeOneIsKnown) {
  const Table empty{u"[]:*?/\\'"_s, {}, {{u"А"_s, CellKind::kNumber, true}}, {}};
  EXPECT_TRUE(Unpacked(WorkbookOf(empty)).at("xl/workbook.xml").contains("Таблица"));
  EXPECT_FALSE(Unpacked(WorkbookOf(empty)).at("xl/worksheets/sheet1.xml").contains("<f>"));
  Table huge = empty;
  huge.rows.resize(1048574);
  EXPECT_FALSE(FitsWorkbook(huge));
  huge.rows.resize(1048570);
  EXPECT_TRUE(FitsWorkbook(huge));
}

}  // namespace
}  // namespace kladez
