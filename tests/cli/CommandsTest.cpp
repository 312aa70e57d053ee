#include "SmallBooks.h"
#include "books/store/Catalogue.h"
#include "cli/Commands.h"
#include "cli/Lists.h"

namespace kladez {
namespace {

class Commands : public testing::Test {
 protected:
  Commands() {
    qputenv("XDG_STATE_HOME", QFile::encodeName(outside_.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(outside_.path()));
  }
  ExitCode Run(const QStringList& words) {
    out_.clear();
    errors_.clear();
    QTextStream out_stream(&out_);
    QTextStream error_stream(&errors_);
    return RunCommand(words, out_stream, error_stream);
  }
  QString Outside(const QString& name, const QString& text) const {
    QFile file(outside_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
    return file.fileName();
  }

  TempData temp_;
  QTemporaryDir outside_;
  QString out_;
  QString errors_;
};

TEST_F(Commands, CheckTellsItsFindingsAndEndsWithACode) {
  CreateDatabase(temp_.Data(), u"Первая"_s);
  CreateDatabase(temp_.Data(), u"Вторая"_s);
  EXPECT_EQ(Run({u"check"_s, temp_.Root()}), ExitCode::kSound) << out_.toStdString();
  EXPECT_EQ(out_.count(u"замечаний 0"_s), 2);

  temp_.PutLines(u"0002\\Главный склад\\PRH\\0001.prh"_s,
                 {u"1"_s, u"вчера"_s, u"-"_s, u"0.00"_s, u"нет"_s});
  temp_.PutLines(u"0002\\Главный склад\\товар.usl"_s, {u"Чай"_s, u"2.50"_s, u"кг"_s});
  const auto before = temp_.Tree();
  EXPECT_EQ(Run({u"check"_s, u"--stock"_s, temp_.Root() + u"/0002"_s}), ExitCode::kFindings);
  EXPECT_TRUE(out_.contains(u"0002\\Главный склад\\PRH\\0001.prh:2: Дата «вчера»"_s))
      << out_.toStdString();
  EXPECT_TRUE(out_.contains(u"0002\\\tГлавный склад\tЧай\t2.5\t0\t0\t0\t2.5\t0\n"_s));
  EXPECT_EQ(temp_.Tree(), before);

  EXPECT_EQ(Run({u"check"_s, u"--data"_s, temp_.Root() + u"/0009"_s}), ExitCode::kNotDone);
  EXPECT_TRUE(errors_.contains(u"0009"_s));
  for (const QStringList& wrong : {QStringList{},
                                   {u"wrong"_s},
                                   {u"check"_s, u"--wrong"_s},
                                   {u"check"_s, u"a"_s, u"b"_s},
                                   {u"check"_s, u"--data"_s}}) {
    EXPECT_EQ(Run(wrong), ExitCode::kNotDone);
    EXPECT_TRUE(errors_.contains(u"kladez-books check [--stock]"_s)) << errors_.toStdString();
  }
}

TEST_F(Commands, ImportBringsATableInOrTriesIt) {
  CreateDatabase(temp_.Data(), u"Лавка"_s);
  temp_.PutLines(u"0001\\SPR\\товар.spr"_s, u" Чай|Улун|Китай|-|пач.|90.00"_lines);
  const QString file =
      Outside(u"list.csv"_s, u"Товар;Мой столбец\nУлун;95\nСоль;9,5\nБез цены;x"_s);
  const QString data = u"--data="_s + temp_.Root();
  const auto before = temp_.Tree();
  const QStringList words{u"import"_s,    data,
                          u"--columns"_s, u"Наименование=1,Цена закупа=2"_s,
                          u"--group"_s,   u"Бакалея"_s};
  EXPECT_EQ(Run(words + QStringList{u"--try"_s, file}), ExitCode::kFindings);
  EXPECT_EQ(temp_.Tree(), before);
  EXPECT_EQ(Run(words + QStringList{file}), ExitCode::kFindings) << errors_.toStdString();
  EXPECT_EQ(out_.toStdString(),
            "2\tизменён\tУлун\tЦена закупа: 90.00 → 95.00\n3\tновый\tСоль\tГруппа «Бакалея»\n"
            "4\tотказ\tБез цены\tЦена закупа: «x» не подходит, нужно число не меньше нуля\n"
            "Новых товаров 1, изменено 1, без изменений 0, отказано 1\n");
  EXPECT_EQ(temp_.Lines(u"0001\\SPR\\товар.spr"_s),
            u" Чай|Улун|Китай|-|пач.|95.00| Бакалея|Соль||||9.50"_lines);
  EXPECT_EQ(QDir(outside_.path()).entryList({u"kladez"_s}).size(), 1);  // a copy was made before

  EXPECT_EQ(Run({u"import"_s, data, u"--prices"_s, u"Главный склад/Опт"_s,
                 Outside(u"p.csv"_s, u"Наименование;Цена\nСоль;12"_s)}),
            ExitCode::kSound);
  EXPECT_EQ(temp_.Lines(u"0001\\Главный склад\\PRICE\\0003.prc"_s).last(), u"12.00"_s);

  CreateDatabase(temp_.Data(), u"Вторая"_s);
  EXPECT_EQ(Run({u"import"_s, data, file}), ExitCode::kNotDone);
  EXPECT_TRUE(errors_.contains(u"0001 «Лавка», 0002 «Вторая»"_s)) << errors_.toStdString();
  EXPECT_EQ(Run({u"import"_s, data, u"--base=Лавка"_s, u"--try"_s, u"--prices=Подвал/Опт"_s, file}),
            ExitCode::kNotDone);
  EXPECT_EQ(Run({u"import"_s, data, u"--base=0001"_s, outside_.path()}), ExitCode::kNotDone);
}

TEST_F(Commands, ListsGoOutAsCsvAndJson) {
  Session session;
  SmallBooks books(temp_.Data(), session, u"Лавка"_s);
  books.Goods(u" Чай|Улун|Китай|-|пач.|90.00"_lines);
  books.Ship(0, u"0001.uhd"_s, u"05.03.2026"_s, u"0"_s, u"240.00"_s,
             u"Улун|2|пач.|90.00|120.00|120.00"_lines);
  books.Ship(0, u"0002.uhd"_s, u"06.04.2026"_s, u"0"_s, u"10.50"_s, {});
  const QStringList list{u"list"_s, u"--data"_s, temp_.Root()};
  const auto before = temp_.Tree();
  EXPECT_EQ(Run(list + QStringList{u"goods"_s}), ExitCode::kSound) << errors_.toStdString();
  EXPECT_EQ(out_.toStdString(),
            "Наименование;Страна;N декларации;Ед.изм.;Цена закупа;Штрихкод;Минимум\r\n"
            " Чай;;;;;;\r\nУлун;Китай;-;пач.;90,00;;\r\n");
  EXPECT_EQ(Run(list + QStringList{u"--to=31.03.2026"_s, u"shipments"_s}), ExitCode::kSound);
  EXPECT_TRUE(
      out_.endsWith(u"0001.uhd;7;05.03.2026;Клиент;Главный склад;240,00;да\r\n"
                    "Итого;;;;;240,00;\r\n"_s))
      << out_.toStdString();
  const QString file = outside_.filePath(u"sales.json"_s);
  EXPECT_EQ(Run(list + QStringList{u"sales"_s, u"--json"_s, u"--out"_s, file}), ExitCode::kSound);
  QFile json(file);
  ASSERT_TRUE(json.open(QIODevice::ReadOnly));
  const QByteArray text = json.readAll();
  EXPECT_TRUE(text.contains("\"2026-03-05\"") && text.contains("\"Сумма\": 240")) << text.data();
  for (const QString& name : ListNames()) {
    EXPECT_EQ(Run(list + QStringList{name}), ExitCode::kSound) << name.toStdString();
  }
  EXPECT_EQ(temp_.Tree(), before);
  for (const QStringList& wrong : {QStringList{u"goods"_s, u"--from=вчера"_s},
                                   {u"goods"_s, u"--warehouse=Подвал"_s},
                                   {u"prices"_s, u"--list=Нет"_s},
                                   {u"чего-нибудь"_s},
                                   {}}) {
    EXPECT_EQ(Run(list + wrong), ExitCode::kNotDone);
    EXPECT_TRUE(out_.isEmpty());
  }
}

}  // namespace
}  // namespace kladez
