#include "SmallBooks.h"
#include "books/prices/GoodsBringer.h"
#include "books/prices/PriceStore.h"

namespace kladez {
namespace {

class GoodsBringerTest : public testing::Test, protected BooksOnDisk {
 protected:
  GoodsBringerTest() {
    Goods(
        u" Чай|Чай «Ёлка»|Индия|-|пач.|45|Чай  зелёный|-|-|пач.|50.00| Кофе|Мокко|-|-|кг|900.00"_lines);
    PriceLists(u"Главный склад"_s, u"Опт|Розница"_lines, {{}, u"Мокко|кг|1.00|1200.00"_lines});
    Put(files::kGoodsExtras.toString(), u"Мокко|Штрихкод|4601234567893||"_lines);
  }

  BringPlan Plan(const QString& text, BringChoice choice = {}) {
    sheet_ = ReadSheet(text);
    const auto plain = choice.price_list < 0 ? PlainPrice::kPurchase : PlainPrice::kSale;
    choice.layout = GuessLayout(sheet_, plain);
    return bringer_.emplace(temp.Data(), session).Plan(sheet_, choice);
  }
  // "+" new, "!" changed, "=" same, "-" refused, "#" heading; number, name and what is told.
  static QString Shown(const BringPlan& plan) {
    QStringList rows;
    for (const BroughtRow& row : plan.rows) {
      rows << u"%1%2 %3: %4"_s.arg(u"+!=-#"_s[static_cast<int>(row.fate)])
                  .arg(row.number)
                  .arg(row.goods.name, row.told);
    }
    return rows.join(u'\n');
  }

  Sheet sheet_;
  std::optional<GoodsBringer> bringer_;
};

TEST_F(GoodsBringerTest, EveryRowIsToldWhatComesOfItAndWhy) {
  const BringPlan plan = Plan(
      u"ООО «Поставщик»\n"
      "Штрих-код;Товар;Ед.;Цена, руб.;Минимум\n"
      ";Чай «Ёлка»;пач.;45,00;\n"           // nothing new
      ";чай «елка»;пач.;46;\n"              // the same goods in another spelling
      ";Чай зелёный;шт;1 051,5;5\n"         // changes
      "4601234567893;Кофе мокко;кг;900;\n"  // known by its code
      "4601234567893;Чай зелёный;;;\n"      // whose code is another's
      ";Какао;;;\n"                         // heads others
      "4600000000008;Какао 100×2 г²;пач.;7.777;0\n"
      ";какао 100x2 Г2;;8;\n"
      "4600000000008;Несквик;;8;\n"
      ";Соль;;дорого;\n;Соль;;-1;\n;;;5;\n123;Соль;;1;\n4,6E+12;Соль;;1;\n460A;Соль;;1;\n"
      ";Чай 茶;;1;\nx;Итого:;;99;\n;Сахар;кг;;"_s);
  EXPECT_EQ(Shown(plan).toStdString(),
            "=3 Чай «Ёлка»: \n"
            "-4 чай «елка»: Тот же товар уже стоит в строке 3\n"
            "!5 Чай  зелёный: Ед.изм.: пач. → шт; Цена закупа: 50.00 → 1051.50; Минимум: нет → 5\n"
            "=6 Мокко: \n"
            "-7 Чай зелёный: Штрихкод 4601234567893 уже у товара «Мокко»\n"
            "#8  Какао: Заголовок: товаров в этой строке нет\n"
            "+9 Какао 100x2 г2: Группа «Какао»\n"
            "-10 какао 100x2 Г2: Тот же товар уже стоит в строке 9\n"
            "-11 Несквик: Тот же штрихкод уже стоит в строке 9\n"
            "-12 Соль: Цена закупа: «дорого» не подходит, нужно число не меньше нуля\n"
            "-13 Соль: Цена закупа: «-1» не подходит, нужно число не меньше нуля\n"
            "-14 : Нет наименования\n"
            "+15 Соль: Группа «Какао»\n"
            "-16 Соль: Штрихкод «4,6E+12» округлён программой таблиц: задайте столбцу текстовый "
            "формат\n"
            "-17 Соль: В штрихкоде бывают только цифры\n"
            "-18 Чай 茶: Наименование: знака «茶» в файлах базы быть не может\n"
            "-19 Итого:: Строка итогов\n"
            "+20 Сахар: Группа «Какао»; цены закупа нет");
  bringer_->Save(plan);
  EXPECT_EQ(temp.Lines(u"0001\\SPR\\товар.spr"_s).join(u'|').toStdString(),
            " Чай|Чай «Ёлка»|Индия|-|пач.|45|Чай  зелёный|-|-|шт|1051.50| Кофе|Мокко|-|-|кг|900.00"
            "| Какао|Какао 100x2 г2|||пач.|7.78|Соль||||1.00|Сахар|||кг|0.00");
  EXPECT_EQ(temp.Lines(u"0001\\kladez\\товары.usd"_s).join(u'|').toStdString(),
            "Какао 100x2 г2|Штрихкод|4600000000008||Мокко|Штрихкод|4601234567893||"
            "Соль|Штрихкод|123||Чай  зелёный|Минимум|5||");
  EXPECT_EQ(temp.Lines(u"0001\\Главный склад\\PRICE\\0002.prc"_s).size(), 4);
}

TEST_F(GoodsBringerTest, SalePricesGoToTheChosenListAsItsScreenSavesIt) {
  const QString table = u"Наименование;Цена\nМокко;1200\nЧай «Ёлка»;60,5\nРом;70\nЭль;80"_s;
  BringChoice choice{.layout = {}, .warehouse = u"Главный склад"_s, .price_list = 1};
  choice.add_new = false;
  EXPECT_EQ(Shown(Plan(table, choice)).toStdString(),
            "=2 Мокко: \n!3 Чай «Ёлка»: Цена реализации: 45.00 → 60.50\n"
            "-4 Ром: Такого товара в справочнике нет\n-5 Эль: Такого товара в справочнике нет");
  choice.add_new = true;
  choice.group = u"Чай"_s;
  const BringPlan plan = Plan(table, choice);
  bringer_->Save(plan);
  EXPECT_EQ(temp.Lines(u"0001\\SPR\\товар.spr"_s).mid(11, 10).join(u'|').toStdString(),
            "Ром||||0.00|Эль||||0.00");  // at the end of their group
  EXPECT_EQ(temp.Lines(u"0001\\Главный склад\\PRICE\\0002.prc"_s).join(u'|').toStdString(),
            " Чай|Чай «Ёлка»|пач.|45.00|60.50|Чай  зелёный|пач.|50.00|50.00|Ром||0.00|70.00|"
            "Эль||0.00|80.00| Кофе|Мокко|кг|900.00|1200.00");
  EXPECT_EQ(temp.Bytes(u"0001\\Главный склад\\PRICE\\0001.prc"_s), QByteArray());

  // What somebody has saved since the table was looked at is not written over.
  const BringPlan late = Plan(u"Наименование;Цена\nМокко;1\n"_s, choice);
  const auto put = [&](const QString& file, const QStringList& lines) {
    temp.PutLines(file, lines);
    const auto before = temp.Tree();
    EXPECT_THROW(bringer_->Save(late), StaleFile);
    EXPECT_EQ(temp.Tree(), before);
  };
  put(u"0001\\Главный склад\\PRICE\\0002.prc"_s, u"Мокко|кг|1.00|2.00"_lines);
  put(u"0001\\SPR\\товар.spr"_s, u" Чай"_lines);
}

TEST_F(GoodsBringerTest, ColumnsAreGuessedFromHeadingsOrContents) {
  const struct {
    QString text;
    PlainPrice plain;
    QString columns;  // in the order of the fields, from 1
  } cases[] = {
      // The program's own tables.
      {u"Наименование;Страна;N декларации;Ед.изм.;Цена закупа"_s, PlainPrice::kPurchase,
       u"1 4 5 0 2 3 0 0 0"_s},
      {u"Наименование;Ед.изм.;Цена закупа;Цена реализации"_s, PlainPrice::kSale,
       u"1 2 3 4 0 0 0 0 0"_s},
      // Those of suppliers.
      {u"Прайс от 05.03.2026\nКод товара;Номенклатура;Категория;Ед.;Опт;РРЦ;EAN-13;Мин. остаток"_s,
       PlainPrice::kPurchase, u"2 4 5 6 0 0 7 8 3"_s},
      {u"№\tНазвание\tЕдиница\tСредняя оценка\tЦена, руб."_s, PlainPrice::kSale,
       u"2 3 0 5 0 0 0 0 0"_s},
      // No headings at all.
      {u"4601234567893;Чай чёрный, 100 г;пач.;45,00;60\n4600000000008;Кофе в зёрнах;кг;900;1200"_s,
       PlainPrice::kPurchase, u"2 3 4 5 0 0 1 0 0"_s},
      {u"Чай чёрный;45,00\nКофе;60"_s, PlainPrice::kSale, u"1 0 0 2 0 0 0 0 0"_s},
      {{}, PlainPrice::kSale, u"0 0 0 0 0 0 0 0 0"_s},
  };
  for (const auto& [text, plain, columns] : cases) {
    QStringList found;
    for (const int column : GuessLayout(ReadSheet(text), plain).columns) {
      found << QString::number(column + 1);
    }
    EXPECT_EQ(found.join(u' '), columns) << text.toStdString();
  }
  const Sheet sheet = ReadSheet(u"Товар;Цена\nЧай;1"_s);
  EXPECT_EQ(ColumnTitle(sheet, GuessLayout(sheet, PlainPrice::kSale), 1), u"B: Цена"_s);
  EXPECT_EQ(ColumnTitle(sheet, GuessLayout(sheet, PlainPrice::kSale), 27), u"AB"_s);
}

}  // namespace
}  // namespace kladez
