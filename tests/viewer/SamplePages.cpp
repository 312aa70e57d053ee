#include "viewer/SamplePages.h"

#include <QHash>
#include <QStringList>

#include "viewer/page/PageText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

const QString kTableOpening =
    u"<TABLE style=border-Collapse:Collapse bgcolor=#ffffff bordercolor=#000000 cellspacing=0 "
    "cellpadding=0 BORDER=1 WIDTH=100%>\r\n"_s;
const QString kEnd = u"</center></table><p></p>\r\n"_s;

QString Head(const QString& title) {
  return u"<HTML><HEAD><meta http-equiv=\"Content-Type\" content=\"text/html; "
         "charset=windows-1251\"><TITLE>"_s +
         title + u"</TITLE></HEAD><BODY BGCOLOR=#ffffff>\r\n"_s;
}

QString CellOf(int width, const QString& align, int size, const QString& text) {
  return u"<TD WIDTH=%1% VALIGN=TOP%2><FONT FACE=Arial SIZE=%3>%4</FONT></TD>"_s.arg(width)
      .arg(align)
      .arg(size)
      .arg(text);
}

QString RightCell(int width, int size, const QString& text) {
  return CellOf(width, u" ALIGN=RIGHT"_s, size, text + u"&nbsp;"_s);
}

QString Goods(int number) {
  static const QStringList names = {
      u"Болт М8х40 оцинкованный"_s, u"Гвозди строительные 100 мм"_s,
      u"Краска фасадная «Белая ночь», ведро 10 кг, матовая, для наружных работ"_s,
      u"Труба d<7 сталь & медь"_s, u"Плитка <Ромашка> 20x20"_s};
  return names[number % names.size()] + u" №%1"_s.arg(number);
}

}  // namespace

QByteArray ToWindows1251(const QString& text) {
  static const QHash<QChar, char> bytes = [] {
    QHash<QChar, char> table;
    for (int byte = 1; byte < 256; ++byte) {
      const char c = static_cast<char>(byte);
      table.insert(DecodePage(QByteArray(1, c))[0], c);
    }
    return table;
  }();
  QByteArray out;
  for (const QChar c : text) out += bytes.value(c, '?');
  return out;
}

QString WaybillPage(int rows, const QString& party) {
  QString page = Head(u"Накладная"_s);
  page +=
      u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 128 от 05.03.2026"
      "</FONT></B><br></p>\r\n"_s;
  page += u"<FONT FACE=Arial SIZE=3>От кого:ИП Петров</U></b></FONT><br>\r\n"_s;
  page += u"<FONT FACE=Arial SIZE=3>Кому:"_s + party + u"</U></b></FONT><br>\r\n"_s;
  page += u"<FONT FACE=Arial SIZE=3>Склад:Основной</U></b></FONT><br>\r\n<br>\r\n<CENTER>\r\n"_s;
  page += kTableOpening + u"<TR>"_s + CellOf(5, u" ALIGN=CENTER"_s, 4, u"N"_s) +
          CellOf(65, {}, 4, u"&nbsp;Наименование"_s) + RightCell(10, 4, u"Кол-во"_s) +
          RightCell(10, 4, u"Цена"_s) + RightCell(10, 4, u"Сумма"_s) + u"</TR>\r\n"_s;
  for (int i = 1; i <= rows; ++i) {
    page += u"<TR>"_s + CellOf(5, u" ALIGN=CENTER"_s, 2, QString::number(i)) +
            CellOf(65, {}, 2, u"&nbsp;"_s + Goods(i) + u"&nbsp;"_s) +
            RightCell(10, 2, QString::number(i % 90 + 1)) + RightCell(10, 2, u"125.50"_s) +
            RightCell(10, 2, u"12550.00"_s) + u"</TR>\r\n\r\n"_s;
  }
  page += kEnd;
  for (const QString& line :
       {u"Всего: 12550.00 руб."_s, u"Скидка: 5%"_s, u"Итого к оплате: 11922.50 руб.,"_s,
        u"включая НДС: 1 818.69 руб."_s, u"              НСП: 0.00 руб."_s})
    page += u"<br><FONT FACE=Arial SIZE=2><i>"_s + line + u"</FONT></i>\r\n"_s;
  page +=
      u"\r\n<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: %1</FONT></b>\r\n"_s.arg(rows);
  page +=
      u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Одиннадцать тысяч девятьсот двадцать два рубля "
      "50 копеек</FONT></b><BR>\r\n"_s;
  page +=
      u"<p></p><br><br><br><p>&nbsp;&nbsp;&nbsp;<FONT FACE=Arial SIZE=3>Отпустил ___________ "
      "&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;Получил ___________</FONT><BR></p><BR>"
      "</body></html>\r\n"_s;
  return page;
}

QString InvoicePage(int rows) {
  static const QList<int> widths = {23, 3, 3, 5, 5, 2, 3, 4, 7, 6, 9};
  static const QStringList captions = {u"Наименование товара"_s,
                                       u"Единица измерения"_s,
                                       u"Количество"_s,
                                       u"Цена (тариф) за единицу измерения"_s,
                                       u"Стоимость товаров (работ, услуг) всего без НДС"_s,
                                       u"В т.числе акциз"_s,
                                       u"Налоговая ставка"_s,
                                       u"Сумма налога"_s,
                                       u"Стоимость товаров (работ, услуг) всего с учетом налога"_s,
                                       u"Страна происхожд."_s,
                                       u"N груз. там. декларации"_s};
  QString page = Head(u"Счет-фактура"_s);
  page +=
      u"<div align='Right'>\r\n<p><font size='1' face='Arial'>Приложение № 1<br>\r\n"
      "к Правилам ведения журналов учета полученных и выставленных счетов-фактур,<br>\r\n"
      "книг покупок и книг продаж при расчетах по налогу на добавленную стоимость,<br>\r\n"
      "утвержденным постановлением Правительства Российской Федерации от 2 декабря\r\n"
      "2000 г. № 914<br>\r\n</font></p></div>\r\n"
      "<p>&nbsp;<center><FONT FACE=Arial SIZE=4>Счет-фактура N 128 от 05.03.2026</FONT><br><br>"
      "</center></P>\r\n"
      "<FONT FACE=Arial SIZE=2>Продавец: ООО <Ромашка> & Ко<br>\r\nАдрес: г. Тула<br>\r\n"
      "ИНН Покупателя: 7107012345</font><br><br>\r\n"_s;
  page +=
      u"<TABLE style=\"border-Collapse:Collapse; border-right-width:0; border-bottom-width:0\" "
      "bgcolor=#ffffff bordercolor=#000000 cellspacing=0 cellpadding=0 BORDER=1 WIDTH=100% "
      "height=92><TR>\r\n"_s;
  for (qsizetype i = 0; i < captions.size(); ++i)
    page += CellOf(widths[i], u" ALIGN=CENTER"_s, 1, captions[i]) + u"\r\n"_s;
  page += u"</TR><TR>\r\n"_s;
  for (qsizetype i = 0; i < captions.size(); ++i) {
    page += u"<TD ALIGN=CENTER><font style='font-size:7pt' face='Arial'>%1</font></TD>\r\n"_s.arg(
        i + 1);
  }
  page += u"</TR>\r\n"_s;
  for (int i = 1; i <= rows; ++i) {
    const QStringList values = {Goods(i),
                                u"шт."_s,
                                u"10"_s,
                                u"106.36"_s,
                                u"1063.60"_s,
                                QString(),
                                u"18"_s,
                                u"191.44"_s,
                                u"1255.00"_s,
                                u"Россия"_s,
                                u"10130010/220204/0001234"_s};
    page += u"<TR>"_s;
    for (qsizetype c = 0; c < values.size(); ++c) {
      const bool is_text = c == 0 || c >= 9;
      page += is_text ? CellOf(widths[c], c == 9 ? u" ALIGN=CENTER"_s : QString(), 2, values[c])
                      : RightCell(widths[c], 2, values[c]);
    }
    page += u"</TR>\r\n"_s;
  }
  page += u"<TR>"_s;
  for (int c = 0; c < 9; ++c)
    page += c == 0 ? CellOf(23, {}, 2, u"Всего"_s) : RightCell(widths[c], 2, u"1255.00"_s);
  page +=
      u"</TR>\r\n</center></table><br><br>\r\n"
      "<table width='100%' border='0' cellspacing='0' cellpadding='1'>\r\n"
      "<tr><td><font size='2' face='Arial'>Руководитель организации</font></td>"
      "<td><font size='2' face='Arial'>______________ Петров П.П.</font></td>"
      "<td><font size='2' face='Arial'>Главный бухгалтер _____________ Иванова</font></td></tr>\r\n"
      "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td></tr>\r\n"
      "<tr><td><font size='2' face='Arial'>Индивидуальный предприниматель</font></td>"
      "<td><font size='2' face='Arial'>_____________ </font></td>"
      "<td><font size='2' face='Arial'>(реквизиты свидетельства<br>\r\nо государственной "
      "регистрации<br>\r\nиндивидуального предпринимателя)</font></td></tr></table>\r\n"
      "<p>&nbsp;</p>\r\n<p align='left'><font size='1' face='Arial, Helvetica, sans-serif'>Без "
      "печати\r\nнедействительна. Первый экземпляр (оригинал) - покупателю.</font></p>\r\n"
      "</div>\r\n</body>\r\n</html>\r\n"_s;
  return page;
}

QString BillPage(int rows) {
  static const QList<int> widths = {1, 15, 3, 5, 6, 6};
  static const QStringList captions = {u"N"_s,      u"Наименование"_s, u"Ед. изм."_s,
                                       u"Кол-во"_s, u"Цена"_s,         u"Сумма"_s};
  QString page = Head(u"Счет"_s);
  page += u"<TABLE style=border-Collapse:Collapse width=100%><TR><TD VALIGN=TOP ALIGN=left>\r\n"_s;
  for (const QString& line : {u"<b>Продавец: ООО Ромашка</b>"_s, u"Адрес: г. Тула, ул. Мира, 5"_s,
                              u"Расч.счет: 40702810900000000001"_s, u"БИК: 047003608"_s})
    page += u"<FONT FACE=Arial SIZE=2>"_s + line + u"</FONT><br>\r\n"_s;
  page +=
      u"<p></p><FONT FACE=Arial SIZE=2><b>Покупатель: ИП Сидоров</b></FONT><br>\r\n"
      "</TD></TR></table>\r\n<p align=CENTER><b><FONT FACE=Arial SIZE=4>Счет N 128 от "
      "05.03.2026</FONT></B><br><br></p>\r\n<br>\r\n<CENTER>\r\n"_s;
  page += kTableOpening + u"<TR>"_s;
  for (qsizetype c = 0; c < captions.size(); ++c)
    page += CellOf(widths[c], u" ALIGN=CENTER"_s, 2, u"<b>"_s + captions[c] + u"</b>"_s);
  page += u"</TR>\r\n"_s;
  for (int i = 1; i <= rows; ++i) {
    page += u"<TR>"_s + CellOf(1, {}, 2, QString::number(i)) +
            CellOf(15, {}, 2, u"&nbsp;"_s + Goods(i)) + CellOf(3, {}, 2, u"шт."_s) +
            RightCell(5, 2, u"10"_s) + RightCell(6, 2, u"106.36"_s) +
            RightCell(6, 2, u"1063.60"_s) + u"</TR>\r\n"_s;
  }
  page +=
      u"</center></table>\r\n<br><FONT FACE=Arial SIZE=2><i>Всего: 12550.00 руб.</FONT></i>\r\n"
      "<br><FONT FACE=Arial SIZE=2><b>Всего наименований: %1</FONT></b>\r\n"
      "<pre><FONT FACE=Arial SIZE=3>\r\n"
      "       Руководитель предприятия _____________________        Главный бухгалтер "
      "_____________________\r\n\r\n"
      "                                                                         Выдал "
      "_____________________\r\n"
      "                            М.П.\r\n</FONT></pre></body></html>\r\n"_s.arg(rows);
  return page;
}

QString PricePage(int groups, int rows_of_group) {
  QString page = Head(u"Прайс-лист"_s);
  page +=
      u"<FONT FACE=Arial SIZE=3><b>ООО «Колодец»</b></FONT><br>\r\n"
      "<FONT FACE=Arial SIZE=2>Тел.: 12-34-56, факс: 12-34-57</FONT><br>\r\n"
      "<p align=CENTER><b><i><FONT FACE=Arial SIZE=4>Прайс-лист</FONT></i></b></p>\r\n"
      "<FONT FACE=Arial SIZE=1.5>05 марта 2026</FONT><br>\r\n"_s;
  page += kTableOpening + u"<TR>"_s + CellOf(60, {}, 2, u"<b>&nbsp;Наименование&nbsp;</b>"_s) +
          RightCell(10, 2, u"<b>&nbsp;Склад</b>"_s) + RightCell(10, 2, u"<b>&nbsp;Ед. изм.</b>"_s) +
          RightCell(10, 2, u"<b>&nbsp;Цена реализации</b>"_s) + u"</TR></TABLE>\r\n"_s;
  for (int g = 1; g <= groups; ++g) {
    page +=
        kTableOpening +
        u"<TR><TD><FONT FACE=Arial SIZE=2>&nbsp;&nbsp;&nbsp;Группа %1</FONT></TD></TR></TABLE>\r\n"_s
            .arg(g) +
        kTableOpening;
    for (int i = 1; i <= rows_of_group; ++i) {
      page += u"<TR>"_s + CellOf(60, {}, 1, u"&nbsp;"_s + Goods(i) + u"&nbsp;"_s) +
              RightCell(10, 1, QString::number(i)) + RightCell(10, 1, u"шт."_s) +
              RightCell(10, 1, u"125.50"_s) + u"</TR>\r\n"_s;
    }
    page += u"</TABLE>\r\n"_s;
  }
  return page +
         u"<p align=CENTER><FONT FACE=Arial SIZE=2>Директор Петров П.П.</FONT></p>\r\n"
         "</body></html>\r\n"_s;
}

QString ReportPage(int rows) {
  QString page = Head(u"Отчет от 05 марта 2026"_s);
  page +=
      u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Отчет по продажам от 05 марта 2026</FONT></B>"
      "<br><br></p>\r\n<FONT FACE=Arial SIZE=3>Склад: Основной</FONT><br>\r\n"
      "<FONT FACE=Arial SIZE=3>Период: с 01.03.2026 по 05.03.2026</FONT><br><br>\r\n<CENTER>"_s;
  page += kTableOpening + u"<TR>"_s + CellOf(5, {}, 4, u"Дата"_s) + CellOf(30, {}, 4, u"Товар"_s) +
          RightCell(10, 4, u"Ед.изм"_s) + RightCell(10, 4, u"Кол-во"_s) +
          RightCell(10, 4, u"Сумма"_s) + u"</TR>\r\n"_s;
  for (int i = 1; i <= rows; ++i) {
    page += u"<TR>"_s + CellOf(5, {}, 2, u"05.03.26"_s) +
            CellOf(30, {}, 2, u"&nbsp;"_s + Goods(i)) + RightCell(10, 2, u"шт."_s) +
            RightCell(10, 2, u"3"_s) + RightCell(10, 2, u"376.50"_s) + u"</TR>\r\n"_s;
  }
  page +=
      u"<tr><TD WIDTH=5% VALING=TOP><FONT FACE=Arial SIZE=2><b>ИТОГО:</b></FONT></TD><TD></TD>"
      "<TD></TD>"_s +
      RightCell(10, 2, u"<b>%1</b>"_s.arg(rows * 3)) + RightCell(10, 2, u"<b>376.50</b>"_s) +
      u"\r\n<tr>\r\n"_s;
  return page + kEnd + u"</body></html>\r\n"_s;
}

QString ChartPage() {
  return Head(u"Отчет от 05 марта 2026"_s) +
         u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>График продаж за Март 2026</FONT></B><br><br>"
         "<br>\r\n<img src=temp.gif>\r\n</center></table><p></p>\r\n</body></html>\r\n"_s;
}

}  // namespace kladez::viewer
