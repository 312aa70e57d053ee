#include "TempData.h"
#include "books/store/Catalogue.h"
#include "cli/CheckCommand.h"

namespace kladez {
namespace {

TEST(CheckCommand, TellsItsFindingsAndEndsWithACode) {
  const TempData temp;
  CreateDatabase(temp.Data(), u"Первая"_s);
  CreateDatabase(temp.Data(), u"Вторая"_s);
  QString out;
  QString errors;
  const auto run = [&](const QStringList& words) {
    out.clear();
    errors.clear();
    QTextStream out_stream(&out);
    QTextStream error_stream(&errors);
    return RunCheck(words, out_stream, error_stream);
  };
  EXPECT_EQ(run({temp.Root()}), ExitCode::kSound) << out.toStdString();
  EXPECT_EQ(out.count(u"замечаний 0"_s), 2);

  temp.PutLines(u"0002\\Главный склад\\PRH\\0001.prh"_s,
                {u"1"_s, u"вчера"_s, u"-"_s, u"0.00"_s, u"нет"_s});
  temp.PutLines(u"0002\\Главный склад\\товар.usl"_s, {u"Чай"_s, u"2.50"_s, u"кг"_s});
  const auto before = temp.Tree();
  EXPECT_EQ(run({u"--stock"_s, temp.Root() + u"/0002"_s}), ExitCode::kFindings);
  EXPECT_TRUE(out.contains(u"0002\\Главный склад\\PRH\\0001.prh:2: Дата «вчера»"_s))
      << out.toStdString();
  EXPECT_TRUE(out.contains(u"0002\\\tГлавный склад\tЧай\t2.5\t0\t0\t0\t2.5\t0\n"_s));
  EXPECT_EQ(temp.Tree(), before);

  EXPECT_EQ(run({temp.Root() + u"/0009"_s}), ExitCode::kNotDone);
  EXPECT_TRUE(errors.contains(u"0009"_s));
  EXPECT_EQ(run({u"--wrong"_s}), ExitCode::kNotDone);
  EXPECT_EQ(run({u"a"_s, u"b"_s}), ExitCode::kNotDone);
}

}  // namespace
}  // namespace kladez
