#include <sys/stat.h>

#include "TempData.h"
#include "books/store/Catalogue.h"
#include "books/store/Errors.h"
#include "books/store/Import.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using Tree = std::map<std::string, std::string>;
using Area = ImportArea;

// 0001 is the destination, 0002 the source.
class ImportTest : public testing::Test {
 protected:
  void SetUp() override {
    CreateDatabase(temp_.Data(), u"Своя"_s);
    CreateDatabase(temp_.Data(), u"Чужая"_s);
    for (const auto& [file, text] : Files()) {
      temp_.PutLines(u"0001\\"_s + file, {u"своё "_s + text});
      temp_.PutLines(u"0002\\"_s + file, {u"чужое "_s + text});
    }
  }

  static std::vector<std::pair<QString, QString>> Files() {
    return {{u"SPR\\товар.spr"_s, u"товары"_s},    {u"SPR\\firma.spr"_s, u"фирмы"_s},
            {u"SPR\\post.spr"_s, u"поставщики"_s}, {u"SPR\\klient.spr"_s, u"клиенты"_s},
            {u"currency.usd"_s, u"валюта"_s},      {u"marked"_s, u"метки"_s}};
  }

  void Import(std::initializer_list<Area> areas) {
    ImportChoice choice;
    for (const Area area : areas) choice.Tick(area, true);
    ImportAreas(temp_.Data(), u"0002\\"_s, u"0001\\"_s, choice);
  }

  // What the import changed below the destination: path to bytes; "<gone>" never comes up.
  Tree Changed(const Tree& before) const {
    Tree changed;
    for (const auto& [path, bytes] : temp_.Tree()) {
      const auto was = before.find(path);
      if (was == before.end() || was->second != bytes) changed[path] = bytes;
    }
    return changed;
  }

  std::string Foreign(const QString& text) {
    return EncodeLines({u"чужое "_s + text}).toStdString();
  }

  TempData temp_;
};

TEST_F(ImportTest, PlainAreasCopyOneFileEach) {
  temp_.PutLines(u"0002\\post.ras"_s, {u"чужое расчеты"_s});
  temp_.PutLines(u"0002\\склад.usd"_s, {u"чужое склады"_s});
  struct Case {
    Area area;
    std::string file;
    QString text;
  };
  for (const Case& c : {Case{Area::kGoods, "0001/SPR/товар.spr", u"товары"_s},
                        Case{Area::kWarehouses, "0001/склад.usd", u"склады"_s},
                        Case{Area::kFirms, "0001/SPR/firma.spr", u"фирмы"_s},
                        Case{Area::kSuppliers, "0001/SPR/post.spr", u"поставщики"_s},
                        Case{Area::kClients, "0001/SPR/klient.spr", u"клиенты"_s},
                        Case{Area::kAccounts, "0001/post.ras", u"расчеты"_s}}) {
    const Tree before = temp_.Tree();
    Import({c.area});
    EXPECT_EQ(Changed(before), (Tree{{c.file, Foreign(c.text)}})) << c.file;
  }
}

TEST_F(ImportTest, MissingSourceLeavesTheDestinationAndTheRestGoesOn) {
  QFile::remove(temp_.Data().Resolve(u"0002\\SPR\\товар.spr"_s));
  const Tree before = temp_.Tree();
  Import({Area::kGoods, Area::kAccounts, Area::kClients});
  EXPECT_EQ(Changed(before), (Tree{{"0001/SPR/klient.spr", Foreign(u"клиенты"_s)},
                                   {"0001/SPR/post.spr", Foreign(u"поставщики"_s)}}));
}

TEST_F(ImportTest, CurrencyOfTheSourceIsNeverCopied) {
  Tree before = temp_.Tree();
  Import({Area::kCurrency});
  EXPECT_EQ(Changed(before), Tree{});
  temp_.PutLines(u"0002\\currency.spr"_s, {u"x"_s});
  before = temp_.Tree();
  Import({Area::kCurrency});
  EXPECT_EQ(Changed(before), (Tree{{"0001/currency.spr", "x\r\n"}}));
  QFile::remove(temp_.Data().Resolve(u"0002\\currency.usd"_s));
  before = temp_.Tree();
  Import({Area::kCurrency});
  EXPECT_EQ(Changed(before),
            (Tree{{"0001/currency.usd",
                   EncodeLines(u"руб.|рубль|рубля|рублей|коп.|копейка|копейки|копеек"_lines)
                       .toStdString()}}));
}

TEST_F(ImportTest, TaxRatesComeWithTheCurrency) {
  temp_.PutLines(u"0002\\kladez\\ставки.usd"_s, {u"НДС, %"_s, u"20"_s});
  const Tree before = temp_.Tree();
  Import({Area::kGoods, Area::kCurrency});
  EXPECT_EQ(Changed(before), (Tree{{"0001/SPR/товар.spr", Foreign(u"товары"_s)},
                                   {"0001/kladez/", ""},
                                   {"0001/kladez/ставки.usd", "\xCD\xC4\xD1, %\r\n20\r\n"}}));
}

TEST_F(ImportTest, TermsComeWithTheClients) {
  temp_.PutLines(u"0002\\kladez\\условия.usd"_s, {u""_s});
  const Tree before = temp_.Tree();
  Import({Area::kSuppliers, Area::kClients});
  EXPECT_EQ(Changed(before), (Tree{{"0001/SPR/klient.spr", Foreign(u"клиенты"_s)},
                                   {"0001/SPR/post.spr", Foreign(u"поставщики"_s)},
                                   {"0001/kladez/", ""},
                                   {"0001/kladez/условия.usd", "\r\n"}}));
}

TEST_F(ImportTest, StockBringsTheSourcesWarehousesWithTheirDirectories) {
  temp_.PutLines(u"0002\\склад.usd"_s, u"Главный склад|Киоск|Без остатков"_lines);
  temp_.PutLines(u"0002\\Главный склад\\товар.usl"_s, u"Чай|5|шт"_lines);
  temp_.PutLines(u"0002\\Киоск\\товар.usl"_s, u"Мёд|2|кг"_lines);
  temp_.PutLines(u"0001\\Старый\\товар.usl"_s, {u"остаётся"_s});
  const Tree before = temp_.Tree();
  Import({Area::kStock});
  const std::string goods = EncodeLines({u"чужое товары"_s}).toStdString();
  Tree expected = {
      {"0001/SPR/товар.spr", goods},
      {"0001/склад.usd", temp_.Bytes(u"0002\\склад.usd"_s).toStdString()},
      {"0001/Главный склад/товар.usl",
       temp_.Bytes(u"0002\\Главный склад\\товар.usl"_s).toStdString()},
      {"0001/Киоск/товар.usl", temp_.Bytes(u"0002\\Киоск\\товар.usl"_s).toStdString()},
  };
  for (const std::string warehouse : {"Киоск", "Без остатков"}) {
    for (const std::string directory : {"", "OPR/", "PRH/", "UHD/", "PRICE/"}) {
      expected["0001/" + warehouse + "/" + directory] = "";
    }
  }
  EXPECT_EQ(Changed(before), expected);
}

TEST_F(ImportTest, PriceListsKeepThoseThatTheSourceLacks) {
  temp_.PutLines(u"0002\\Главный склад\\price.usd"_s, {u"Одна цена"_s});
  temp_.PutLines(u"0002\\Главный склад\\PRICE\\0001.prc"_s, {u"Чай"_s});
  temp_.PutLines(u"0002\\Главный склад\\PRICE\\0009.PRC"_s, {u"Мёд"_s});
  temp_.PutLines(u"0002\\Главный склад\\PRICE\\readme.txt"_s, {u"нет"_s});
  temp_.PutLines(u"0001\\Главный склад\\PRICE\\0007.prc"_s, {u"остаётся"_s});
  const Tree before = temp_.Tree();
  Import({Area::kPrices});
  const Tree changed = Changed(before);
  EXPECT_EQ(changed.at("0001/Главный склад/price.usd"),
            EncodeLines({u"Одна цена"_s}).toStdString());
  EXPECT_EQ(changed.at("0001/Главный склад/PRICE/0001.prc"), EncodeLines({u"Чай"_s}).toStdString());
  EXPECT_EQ(changed.at("0001/Главный склад/PRICE/0009.PRC"), EncodeLines({u"Мёд"_s}).toStdString());
  EXPECT_EQ(changed.count("0001/Главный склад/PRICE/readme.txt"), 0u);
  EXPECT_EQ(temp_.Lines(u"0001\\Главный склад\\PRICE\\0007.prc"_s), QStringList{u"остаётся"_s});
}

TEST_F(ImportTest, WhatStandsInTheWayIsPassedOver) {
  // A warehouse that leads out, one whose place a file takes, one spelled twice, an empty line.
  temp_.PutLines(u"0002\\склад.usd"_s, u"..\\0003|..|Занято|Киоск|КИОСК|"_lines);
  temp_.PutLines(u"0002\\Занято\\товар.usl"_s, {u"a"_s});
  temp_.PutLines(u"0002\\Киоск\\товар.usl"_s, {u"b"_s});
  temp_.PutLines(u"0001\\Занято"_s, {u"это файл"_s});
  ASSERT_EQ(
      ::chmod(QFile::encodeName(temp_.Data().Resolve(u"0001\\SPR\\товар.spr"_s)).constData(), 0444),
      0);
  const Tree before = temp_.Tree();
  Import({Area::kStock});
  Tree expected = {{"0001/склад.usd", temp_.Bytes(u"0002\\склад.usd"_s).toStdString()},
                   {"0001/Киоск/товар.usl", "b\r\n"}};
  for (const std::string directory : {"", "OPR/", "PRH/", "UHD/", "PRICE/"}) {
    expected["0001/Киоск/" + directory] = "";
  }
  EXPECT_EQ(Changed(before), expected);
}

TEST_F(ImportTest, FullDiskChangesNothingAtAll) {
  temp_.PutLines(u"0002\\склад.usd"_s, {u"Главный склад"_s, u"Киоск"_s});
  const Tree before = temp_.Tree();
  int failures = 0;
  for (int fault = 0; fault < 200; fault += 7) {
    int call = 0;
    syscalls::SetFaultHook([&](std::string_view name, const QByteArray&) {
      return call++ >= fault && (name == "create" || name == "write" || name == "mkdir") ? ENOSPC
                                                                                         : 0;
    });
    const bool imported = IgnoreErrors([&] { Import({Area::kStock, Area::kFirms}); });
    syscalls::SetFaultHook({});
    if (imported) break;
    ++failures;
    ASSERT_EQ(temp_.Tree(), before) << "disk full from call " << fault;
  }
  EXPECT_GT(failures, 2);
}

TEST(ImportChoice, StockAndPricesLockGoodsAndWarehouses) {
  ImportChoice choice;
  const auto state = [&] {
    return std::tuple(choice.IsTicked(Area::kGoods), choice.IsLocked(Area::kGoods),
                      choice.IsTicked(Area::kWarehouses), choice.IsLocked(Area::kWarehouses));
  };
  choice.Tick(Area::kStock, true);
  EXPECT_EQ(state(), std::tuple(true, true, true, true));
  choice.Tick(Area::kGoods, false);
  EXPECT_EQ(state(), std::tuple(true, true, true, true));
  choice.Tick(Area::kPrices, true);
  choice.Tick(Area::kStock, false);
  EXPECT_EQ(state(), std::tuple(true, true, true, true));
  choice.Tick(Area::kPrices, false);
  EXPECT_EQ(state(), std::tuple(true, false, true, false));
  choice.Tick(Area::kGoods, false);
  EXPECT_EQ(state(), std::tuple(false, false, true, false));
  choice.Tick(Area::kAccounts, true);
  EXPECT_TRUE(choice.IsTicked(Area::kSuppliers) && choice.IsLocked(Area::kSuppliers));
  choice.Tick(Area::kAccounts, false);
  EXPECT_TRUE(choice.IsTicked(Area::kSuppliers) && !choice.IsLocked(Area::kSuppliers));
}

}  // namespace
}  // namespace kladez
