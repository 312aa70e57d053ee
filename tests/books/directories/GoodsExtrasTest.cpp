#include "DirectoryWorld.h"
#include "books/directories/GoodsDirectory.h"
#include "books/directories/GoodsExtras.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TEST(Barcodes, AreTakenByTheirCheckDigit) {
  const std::pair<QString, bool> cases[] = {
      {u""_s, true},
      {u"4601234567893"_s, true},  // EAN-13
      {u"4601234567890"_s, false},
      {u"4610234567893"_s, false},  // two digits changed places
      {u"96385074"_s, true},        // EAN-8
      {u"96385075"_s, false},
      {u"036000291452"_s, true},  // UPC-A
      {u"036000291453"_s, false},
      {u"200123"_s, true},  // a shop's own
      {u"20012x"_s, false},
      {u"123456789012345678901"_s, false},
  };
  for (const auto& [code, good] : cases) {
    EXPECT_EQ(BarcodeFault(code).isEmpty(), good) << code.toStdString();
  }
  EXPECT_TRUE(IsSameBarcode(u"036000291452"_s, u"0036000291452"_s));
  EXPECT_FALSE(IsSameBarcode({}, {}));
}

class GoodsExtrasKept : public testing::Test, protected DirectoryWorld {
 protected:
  GoodsExtrasKept() {
    PutLines(u"SPR\\товар.spr"_s, {u" Бакалея"_s, u"Мел"_s, u""_s, u""_s, u"шт."_s, u"1.00"_s,
                                   u"Соль"_s, u""_s, u""_s, u"кг"_s, u"2.00"_s});
    PutLines(kFile, {u"Соль"_s, u"Минимум"_s, u"5"_s, u"Штрихкод"_s, u"200123"_s, u""_s, u""_s});
  }
  GoodsDirectory Open(GoodsView view = GoodsView::kGroups) {
    return GoodsDirectory(Data(), CurrentSession(), view);
  }
  static GoodsRecord Named(GoodsRecord record, const QString& name) {
    record.name = name;
    return record;
  }

  const QString kFile = u"kladez\\товары.usd"_s;
  const QStringList kOfSalt = {u"Минимум"_s, u"5"_s, u"Штрихкод"_s, u"200123"_s, u""_s, u""_s};
};

TEST_F(GoodsExtrasKept, FollowANewNameAndGoWithTheGoods) {
  GoodsDirectory goods = Open();
  goods.Change(2, Named(goods.Rows()[2], u"Соль морская"_s));
  EXPECT_TRUE(goods.IsChanged());
  EXPECT_EQ(Lines(kFile).first(), u"Соль"_s) << "not before the record";
  goods.Save();
  EXPECT_FALSE(goods.IsChanged());
  EXPECT_EQ(Lines(kFile), QStringList{u"Соль морская"_s} + kOfSalt);
  EXPECT_EQ(FindByBarcode(Data(), CurrentSession(), u"200123"_s), u"Соль морская"_s);
  goods.Remove(2);
  goods.Save();
  EXPECT_EQ(Lines(kFile), QStringList{u""_s});
}

TEST_F(GoodsExtrasKept, StayWhileOtherGoodsBearTheName) {
  GoodsDirectory goods = Open();
  goods.Insert(2, goods.Rows()[2]);
  goods.Remove(2);
  goods.Save();
  EXPECT_EQ(Lines(kFile), QStringList{u"Соль"_s} + kOfSalt);
}

TEST_F(GoodsExtrasKept, WithTheGoodsAloneANewNameWaitsForItsRecord) {
  GoodsDirectory goods = Open(GoodsView::kGoodsOnly);
  int row = goods.Change(1, Named(goods.Rows()[1], u"Ясень"_s), GoodsExtras{u"200124"_s, {}});
  goods.SaveChange(row);
  EXPECT_EQ(goods.Extras(row).barcode, u"200124"_s);
  EXPECT_EQ(Lines(kFile), QStringList{u"Соль"_s} + kOfSalt) << "the name is not in the file";
  row = goods.Change(0, goods.Rows()[0], GoodsExtras{{}, u"3"_s});
  goods.SaveChange(row);
  EXPECT_EQ(Lines(kFile),
            (QStringList{u"Мел"_s, u"Минимум"_s, u"3"_s, u""_s, u"Соль"_s} + kOfSalt));
  goods.SaveAll();
  EXPECT_EQ(Lines(kFile), (QStringList{u"Мел"_s, u"Минимум"_s, u"3"_s, u""_s, u"Ясень"_s,
                                       u"Штрихкод"_s, u"200124"_s, u""_s, u""_s}));
}

TEST_F(GoodsExtrasKept, ADamagedFileIsEmptyAndIsLeftAloneUntilSomethingIsEntered) {
  Temp().Put(CurrentSession().Path(kFile), "x");
  GoodsDirectory goods = Open();
  EXPECT_TRUE(goods.ExtrasAreDamaged());
  EXPECT_EQ(goods.Extras(2), GoodsExtras());
  goods.Save();
  EXPECT_EQ(Temp().Bytes(CurrentSession().Path(kFile)), "x");
  goods.Change(1, goods.Rows()[1], GoodsExtras{u"200124"_s, {}});
  EXPECT_EQ(goods.OwnerOfBarcode(u"200124"_s, u"Соль"_s), u"Мел"_s);
  goods.Save();
  EXPECT_EQ(Lines(kFile).first(), u"Мел"_s);
}

}  // namespace
}  // namespace kladez
