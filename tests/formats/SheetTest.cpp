#include <gtest/gtest.h>

#include <QStringEncoder>

#include "formats/TextLines.h"
#include "formats/tables/Sheet.h"
#include "formats/tables/SheetNumbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Cells parted by "|", rows by "/", each behind its number.
QString Shown(const Sheet& sheet) {
  QStringList rows;
  for (const SheetRow& row : sheet.rows) {
    rows << QString::number(row.number) + u' ' + row.cells.join(u'|');
  }
  return rows.join(u'/');
}

TEST(Sheet, EveryEncodingIsKnown) {
  const QString text = u"Чай;шт.;45,00\r\nКофе №1;кг;1"_s;
  const auto in = [&](QStringConverter::Encoding encoding, bool mark) {
    const auto flag = mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default;
    return QByteArray(QStringEncoder(encoding, flag).encode(text));
  };
  for (const QByteArray& bytes :
       {EncodeText(text), in(QStringConverter::Utf8, false), in(QStringConverter::Utf8, true),
        in(QStringConverter::Utf16LE, true), in(QStringConverter::Utf16BE, true),
        in(QStringConverter::Utf16LE, false), in(QStringConverter::Utf16BE, false)}) {
    EXPECT_EQ(DecodeSheet(bytes), text) << bytes.toHex(' ').left(30).toStdString();
  }
  EXPECT_EQ(DecodeSheet(QByteArray()), QString());
}

TEST(Sheet, SeparatorsQuotationMarksAndLineEndsAreRead) {
  const struct {
    QString text;
    QString shown;
  } cases[] = {
      {u"a;b\r\n1,5;\"x;\"\"y\"\"\n2\"\r\r\n;\n 3 ;4"_s, u"1 a|b/2 1,5|x;\"y\"\n2/5  3 |4"_s},
      {u"Чай, чёрный\t1,5\nКофе, тёртый\t2,5"_s, u"1 Чай, чёрный|1,5/2 Кофе, тёртый|2,5"_s},
      {u"имя,цена\n\"Чай, 100 г\",\"45,00\"\nСоль; каменная,9"_s,
       u"1 имя|цена/2 Чай, 100 г|45,00/3 Соль; каменная|9"_s},
      {u"ООО «Заря»\n\nимя;цена\nЧай;4\nКофе;5"_s, u"1 ООО «Заря»/3 имя|цена/4 Чай|4/5 Кофе|5"_s},
      {u"sep=;\na,b;c"_s, u"2 a,b|c"_s},
      {u"\"Ассам\" чай;1\nБолт 3/4\";2\n\"Болт;3"_s,
       u"1 \"Ассам\" чай|1/2 Болт 3/4\"|2/3 \"Болт|3"_s},
      {u"один столбец"_s, u"1 один столбец"_s},
  };
  for (const auto& [text, shown] : cases) EXPECT_EQ(Shown(ReadSheet(text)), shown);
  const Sheet wide = ReadSheet(QString(200, u';') + u"x\n1;2"_s);
  EXPECT_EQ(Shown(wide), u"2 1|2"_s);  // what lies behind the last column is left out
}

TEST(Sheet, ALongOneIsCutAndSaysSo) {
  const Sheet sheet = ReadSheet(QString(u"1;2;3;4;5;6;7;8;9;0\n"_s).repeated(200'001));
  EXPECT_TRUE(sheet.is_cut);
  EXPECT_EQ(sheet.rows.size(), 200'000);
}

TEST(SheetNumbers, AreReadAsTheColumnWritesThem) {
  const struct {
    QString column;
    QList<double> values;  // -1: none
  } cases[] = {
      {u"1 234,50|45|7,5 руб.|1\u00A0000|2\u202F500,5 ₽|-3|−4|нет||12 шт"_s,
       {1234.5, 45, 7.5, 1000, 2500.5, -3, -4, -1, -1, -1}},
      {u"1,234.50|45.5|1,234|1'000"_s, {1234.5, 45.5, 1234, 1000}},
      {u"1.234,50|1.234|12,5р."_s, {1234.5, 1234, 12.5}},
      {u"1,234|1.234|1.234.567"_s, {1.234, 1.234, 1234567}},
  };
  for (const auto& [column, values] : cases) {
    Sheet sheet;
    for (const QString& cell : column.split(u'|')) sheet.rows.push_back({0, {cell}});
    const SheetNumbers numbers(sheet, 0);
    for (size_t i = 0; i < sheet.rows.size(); ++i) {
      const QString& cell = sheet.rows[i].cells[0];
      EXPECT_EQ(numbers.Read(cell).value_or(-1), values[static_cast<qsizetype>(i)])
          << cell.toStdString();
    }
  }
}

}  // namespace
}  // namespace kladez
