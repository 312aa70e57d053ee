#include <gtest/gtest.h>

#include "formats/NameSearch.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

NameSearch ListOf(std::initializer_list<QStringView> names) {
  NameSearch search;
  for (const QStringView name : names) search.Add(name);
  return search;
}

TEST(NameSearch, ABeginningGoesBeforeWordsAndWordsAreFoundInAnyOrderAndLayout) {
  const NameSearch names =
      ListOf({u"Стиральный порошок", u" Масло", u"Масло подсолнечное 1 л", u"Зубная щётка",
              u"Иван-чай", u"Чай чёрный", u"Coca-Cola", u"Ель", u"Юбка, шёлк"});
  const struct {
    QStringView typed;
    int row;
  } cases[] = {{u"масло", 2},  // the blank of the group in front counts, as told
               {u" ма", 1},   {u"МАСЛО ПО", 2}, {u"подсолн", 2},  {u"1 подсол масло", 2},
               {u"чай", 5},   {u"щетка", 3},    {u"ЩЁТКА", 3},    {u"черн", 5},
               {u"ель", 7},   {u"xfq", 4},      {u"Vfckj gj", 2}, {u"сщсф", 6},
               {u"ёлк", 8},   {u">,rf", 8},     {u"щщщ", -1},     {u"чай масло", -1},
               {u"", -1},     {u" ", 1},        {u"   ", -1},     {u"cola", 6}};
  for (const auto& c : cases) {
    EXPECT_EQ(names.First(c.typed), c.row) << c.typed.toString().toStdString();
  }
  EXPECT_EQ(NameSearch().First(u"чай"), -1);
  EXPECT_EQ(NameSearch().Next(u"чай", 0), -1);
}

TEST(NameSearch, TheNextHitGoesRoundTheList) {
  const NameSearch names = ListOf({u"Иван-чай", u"Кофе", u"Чай", u"Чай зелёный"});
  EXPECT_EQ(names.First(u"чай"), 2);
  EXPECT_EQ(names.Next(u"чай", 2), 3);
  EXPECT_EQ(names.Next(u"чай", 3), 0);
  EXPECT_EQ(names.Next(u"чай", 0), 2);
  EXPECT_EQ(names.Next(u"кофе", 1), 1);
  EXPECT_EQ(names.Next(u"чай", -1), 0);
  EXPECT_EQ(names.Next(u"пиво", 0), -1);
}

}  // namespace
}  // namespace kladez
