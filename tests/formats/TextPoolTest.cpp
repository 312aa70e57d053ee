#include "TempData.h"
#include "formats/TextPool.h"

namespace kladez {
namespace {

// More of them than the table holds at first, many times over.
TEST(TextPool, ATextKeepsItsNumberHoweverManyCome) {
  constexpr int kTexts = 3000;
  std::vector<QByteArray> texts;
  for (int i = 0; i < kTexts; ++i) texts.push_back("name " + QByteArray::number(i));
  for (const auto keeps : {TextPool::Keeps::kBytes, TextPool::Keeps::kPlaces}) {
    TextPool pool(keeps);
    for (int i = 0; i < kTexts; ++i) {
      ASSERT_EQ(pool.Add(texts[i]), i);
      ASSERT_EQ(pool.Find(texts[i / 2]), i / 2) << "after " << i + 1 << " texts";
    }
    for (int i = 0; i < kTexts; ++i) ASSERT_EQ(pool.Add(texts[i]), i);
    EXPECT_EQ(pool.Size(), kTexts);
    EXPECT_EQ(pool.Text(kTexts - 1), u"name 2999"_s);
    EXPECT_EQ(pool.Find("name"), -1);
  }
}

}  // namespace
}  // namespace kladez
