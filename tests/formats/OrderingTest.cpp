#include <gtest/gtest.h>

#include <QStringList>
#include <algorithm>
#include <numeric>
#include <random>

#include "formats/Ordering.h"
#include "formats/TextLines.h"

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

// Against a stable sort by the keys: every character of the code page, beginnings that all share,
// names that begin each other or tie, and one that the code page lacks.
TEST(Ordering, NamesCompareAsBytesInTheSameOrder) {
  std::mt19937 random(1);
  const auto letter = [&] {
    const char byte = static_cast<char>(random() % 3 == 0 ? "Ee5 "[random() % 4] : random());
    return DecodeText({&byte, 1});
  };
  for (const QString& common : {u""_s, u"Чай чёрный № "_s}) {
    for (const bool foreign : {false, true}) {
      QStringList names = {common, common + u"ё"_s, common + u"е"_s, common + u"еа"_s};
      if (foreign) names.append(common + u"Ω"_s);
      while (names.size() < 2000) {
        QString name = common;
        for (unsigned length = random() % 12; length > 0; --length) name += letter();
        names.append(name);
        if (random() % 4 == 0) names.append(name.toLower());
      }
      std::vector<size_t> wanted(static_cast<size_t>(names.size()));
      std::iota(wanted.begin(), wanted.end(), size_t{0});
      std::stable_sort(wanted.begin(), wanted.end(), [&](size_t a, size_t b) {
        return OrderKey(names[static_cast<int>(a)]) < OrderKey(names[static_cast<int>(b)]);
      });
      EXPECT_EQ(PlacesInOrder(wanted.size(),
                              [&](size_t at) { return QStringView(names[static_cast<int>(at)]); }),
                wanted);
      if (foreign) continue;
      QByteArrayList encoded;
      for (const QString& name : names) encoded.append(EncodeText(name));
      EXPECT_EQ(PlacesInOrder(std::vector<QByteArrayView>(encoded.begin(), encoded.end())), wanted);
    }
  }
}

TEST(Ordering, NamesThatDifferInCaseOnlyTie) {
  EXPECT_EQ(OrderKey(u"Ёлка"), OrderKey(u"ёЛКА"));
  EXPECT_EQ(FoldCase(u"Главный склад"), FoldCase(u"ГЛАВНЫЙ СКЛАД"));
  EXPECT_NE(FoldCase(u"Ёлка"), FoldCase(u"Елка"));
}

}  // namespace
}  // namespace kladez
