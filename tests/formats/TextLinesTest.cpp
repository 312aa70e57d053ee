#include <gtest/gtest.h>

#include <random>
#include <system_error>

#include "books/store/Errors.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QByteArray AllBytes() {
  QByteArray bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.append(static_cast<char>(byte));
  return bytes;
}

TEST(TextLines, AllByteValuesSurviveReadingAndWriting) {
  const QByteArray bytes = AllBytes();
  const QString text = DecodeText(bytes);
  EXPECT_EQ(EncodeText(text), bytes);
  for (QChar c : text) EXPECT_TRUE(CanEncode(c)) << int{c.unicode()};
  // A line end apart, all of them may stand in a line.
  const QByteArray file = bytes + "\r\n" + bytes + "\r\n";
  EXPECT_EQ(EncodeLines(DecodeLines(file)), file);
}

TEST(TextLines, TheCodePageIsWindows1251) {
  const struct {
    int byte;
    char16_t character;
  } cases[] = {{0x20, u' '}, {0x41, u'A'},   {0x7E, u'~'}, {0x80, 0x0402}, {0x85, u'…'},
               {0x88, u'€'}, {0x8F, 0x040F}, {0x91, u'‘'}, {0x96, u'–'},   {0x97, u'—'},
               {0x99, u'™'}, {0xA0, 0x00A0}, {0xA8, u'Ё'}, {0xAB, u'«'},   {0xB0, u'°'},
               {0xB8, u'ё'}, {0xB9, u'№'},   {0xBB, u'»'}, {0xC0, u'А'},   {0xDF, u'Я'},
               {0xE0, u'а'}, {0xFF, u'я'}};
  for (const auto& c : cases) {
    const char byte = static_cast<char>(c.byte);
    EXPECT_EQ(DecodeText({&byte, 1}), QString(QChar(c.character))) << c.byte;
    EXPECT_EQ(EncodeText(QString(QChar(c.character))), QByteArray(1, byte)) << c.byte;
  }
}

TEST(TextLines, WhatTheCodePageLacksIsRefusedAndNotReplaced) {
  for (QStringView text : {u"Kõrv", u"日本", u"😀", u"₽", u"½", u"\u2123"}) {
    EXPECT_THROW(EncodeText(text), std::system_error) << text.toUtf8().constData();
  }
  try {
    EncodeText(u"цена 5 ₽");
    FAIL();
  } catch (const std::system_error& error) {
    EXPECT_EQ(
        ErrorText(error),
        u"Не удалось записать знак «₽»\nзнака нет в кодировке файла"_s);
  }
}

TEST(TextLines, OnlyCarriageReturnWithLineFeedEndsALine) {
  const struct {
    QByteArray bytes;
    QStringList lines;
  } cases[] = {
      {"", {}},
      {"\r\n", {u""_s}},
      {"a", {u"a"_s}},
      {"a\r\n", {u"a"_s}},
      {"a\r\n\r\n", {u"a"_s, u""_s}},
      {"a\r\nb", {u"a"_s, u"b"_s}},
      {"a\nb\r\n", {u"a\nb"_s}},
      {"a\rb\r\n", {u"a\rb"_s}},
      {"a\r", {u"a\r"_s}},
      {"a\r\r\nb", {u"a\r"_s, u"b"_s}},
      {QByteArray("a\0b\r\n", 5), {QString(u"a\0b"_s)}},
      {"\x1A", {u"\x1A"_s}},
  };
  for (const auto& c : cases) EXPECT_EQ(DecodeLines(c.bytes), c.lines) << c.bytes.toHex(' ').data();

  // Files longer than what is looked at together, with line ends at any place.
  std::mt19937 random(20261124);
  for (int round = 0; round < 2000; ++round) {
    QByteArray bytes;
    for (size_t n = random() % 300; n > 0; --n) bytes.append("\r\n\r\naaaaaaa"[random() % 11]);
    QList<QByteArray> lines;
    for (qsizetype at = 0, end; at < bytes.size(); at = end + 2) {
      end = bytes.indexOf("\r\n", at);
      if (end < 0) end = bytes.size();
      lines.append(bytes.sliced(at, end - at));
    }
    LineReader reader(bytes);
    for (const QByteArray& line : lines)
      ASSERT_EQ(reader.NextRaw(), line) << bytes.toHex(' ').data();
    ASSERT_TRUE(reader.AtEnd());
  }
}

TEST(TextLines, PastTheEndLinesAreEmpty) {
  LineReader reader("a\r\n b");
  EXPECT_EQ(reader.Peek(), 'a');
  EXPECT_EQ(reader.Next(), u"a"_s);
  EXPECT_EQ(reader.Peek(), ' ');
  EXPECT_EQ(reader.Next(), u" b"_s);
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(reader.Peek(), '\0');
  EXPECT_EQ(reader.Next(), QString());
  EXPECT_EQ(LineReader("\r\nx").Peek(), '\0');
}

// A pasted line end in a field would shift every record behind it.
TEST(TextLines, ALineEndInsideALineDoesNotBreakTheRecord) {
  const struct {
    QStringView line;
    QByteArray bytes;
  } cases[] = {
      {u"a\r\nb", "a  b\r\n"},
      {u"\r\n", "  \r\n"},
      {u"a\r\nb\r\nc\r\n\r\n", "a  b  c    \r\n"},
      {u"a\r\r\n\nb", "a\r  \nb\r\n"},
      {u"a\rb\nc", "a\rb\nc\r\n"},
  };
  for (const auto& c : cases) {
    LineWriter writer;
    writer.Add(u"first");
    writer.Add(c.line);
    EXPECT_EQ(writer.Take(), "first\r\n" + c.bytes);
  }
}

}  // namespace
}  // namespace kladez
