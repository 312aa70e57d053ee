#include <gtest/gtest.h>

#include "viewer/SamplePages.h"
#include "viewer/page/PageText.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

TEST(PageTextTest, EveryRussianByteIsDecodedWithoutTheToolkitsTables) {
  QByteArray bytes;
  for (int byte = 0x80; byte < 0x100; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(DecodePage(bytes),
            u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
            "АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя"_s);
}

TEST(PageTextTest, CharsetOfTheHeadIsObeyed) {
  const QByteArray utf8 =
      "<HTML><HEAD><meta content=\"text/html; charset=UTF-8\"></HEAD>\xD0\x9F\xD1\x80";
  EXPECT_TRUE(DecodePage(utf8).endsWith(u"Пр"_s));
  EXPECT_EQ(DecodePage("charset=windows-1251>\xCF\xF0"), u"charset=windows-1251>Пр"_s);
}

struct EscapeCase {
  QString page;
  QString escaped;
};

TEST(TypedTextTest, WhatPeopleTypedIsNoMarkup) {
  const EscapeCase cases[] = {
      {u"ООО <Ромашка> & Ко"_s, u"ООО &lt;Ромашка> &amp; Ко"_s},
      {u"5<7"_s, u"5&lt;7"_s},
      {u"Бумага <A4>"_s, u"Бумага &lt;A4>"_s},
      {u"Лента <a href=x>"_s, u"Лента &lt;a href=x>"_s},
      {u"Труба d<b мм</FONT>"_s, u"Труба d&lt;b мм</FONT>"_s},
      {u"<b ООО Ромашка>"_s, u"&lt;b ООО Ромашка>"_s},
      {u"<div Ромашка>"_s, u"&lt;div Ромашка>"_s},
      {u"<"_s, u"&lt;"_s},
      {u"конец <b"_s, u"конец &lt;b"_s},
      {u"M&M's &copy &nbspx"_s, u"M&amp;M's &amp;copy &amp;nbspx"_s},
      {u"<body><script>x</script>"_s, u"<body>&lt;script>x&lt;/script>"_s},
      {u"<BODY><title>Книга</title>"_s, u"<BODY>&lt;title>Книга&lt;/title>"_s},
      {u"<FONT FACE=Arial SIZE=3>Кому:<b></U></b></FONT><br>"_s,
       u"<FONT FACE=Arial SIZE=3>Кому:&lt;b></U></b></FONT><br>"_s},
      {u"<FONT FACE=Arial SIZE=2>Покупатель: ООО <I></FONT>"_s,
       u"<FONT FACE=Arial SIZE=2>Покупатель: ООО &lt;I></FONT>"_s},
      {u"<table><tr><td>Болт <b> М8</td></tr></table>"_s,
       u"<table><tr><td>Болт &lt;b> М8</td></tr></table>"_s},
  };
  for (const EscapeCase& test : cases) EXPECT_EQ(EscapeTypedText(test.page), test.escaped);
}

TEST(TypedTextTest, MarkupOfPrintOutsStaysAsItIs) {
  for (const QString& page :
       {u"<TABLE style=border-Collapse:Collapse bgcolor=#ffffff BORDER=1 WIDTH=100%>"_s,
        u"<font size='1' face='Arial, Helvetica, sans-serif'>"_s, u"</U></b></FONT><br>"_s,
        u"<p>&nbsp;<center>&#171;</center></P>"_s, u"<img src=temp.gif>"_s, u"a &lt; b &amp; c"_s,
        u"<table><tr><td><b>ИТОГО:</b></td></tr></table>"_s,
        u"<p align=CENTER><B><FONT SIZE=5>Отчет</FONT></B><br></p>\r\n<i>Всего</i>"_s,
        u"<TITLE>Счет</TITLE></HEAD><BODY BGCOLOR=#ffffff>"_s})
    EXPECT_EQ(EscapeTypedText(page), page);
}

TEST(TypedTextTest, ScriptsAndStylesOfTheHeadGo) {
  EXPECT_EQ(EscapeTypedText(u"<head><script>a<b</script><style>p{}</style><title>T</title>"_s),
            u"<head><title>T</title>"_s);
  EXPECT_EQ(EscapeTypedText(u"<head><script>никогда не закрыт"_s),
            u"<head>&lt;script>никогда не закрыт"_s);
}

TEST(TypedTextTest, CentringClosedInsideATableIsClosedBehindIt) {
  EXPECT_EQ(EscapeTypedText(u"<CENTER><TABLE><tr><td>1</td></tr></center></table><br>Всего"_s),
            u"<CENTER><TABLE><tr><td>1</td></tr></table></center><br>Всего"_s);
}

}  // namespace
}  // namespace kladez::viewer
