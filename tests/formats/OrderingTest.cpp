#include <gtest/gtest.h>

#include <QStringList>
#include <algorithm>

#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TEST(Ordering, LetterCaseDoesNotMatterAndYoStandsAfterYe) {
  const QStringList ordered = {u""_s,   u" чай"_s, u"10"_s,  u"9"_s,    u"apple"_s, u"Banana"_s,
                               u"а"_s,  u"Абв"_s,  u"абг"_s, u"Е"_s,    u"Еда"_s,   u"ея"_s,
                               u"Ёж"_s, u"ёлка"_s, u"жук"_s, u"Ящик"_s, u"№ 1"_s};
  for (qsizetype i = 0; i + 1 < ordered.size(); ++i) {
    EXPECT_LT(OrderKey(ordered[i]), OrderKey(ordered[i + 1])) << ordered[i].toStdString();
  }
}

TEST(Ordering, NamesThatDifferInCaseOnlyTie) {
  EXPECT_EQ(OrderKey(u"Ёлка"), OrderKey(u"ёЛКА"));
  EXPECT_EQ(FoldCase(u"Главный склад"), FoldCase(u"ГЛАВНЫЙ СКЛАД"));
  EXPECT_NE(FoldCase(u"Ёлка"), FoldCase(u"Елка"));
}

}  // namespace
}  // namespace kladez
