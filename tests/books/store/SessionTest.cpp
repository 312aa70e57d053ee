#include "TempData.h"
#include "books/store/Catalogue.h"
#include "books/store/Session.h"

namespace kladez {
namespace {

constexpr char kRoubles[] =
    "\xF0\xF3\xE1.\r\n\xF0\xF3\xE1\xEB\xFC\r\n\xF0\xF3\xE1\xEB\xFF\r\n\xF0\xF3\xE1\xEB\xE5\xE9\r\n"
    "\xEA\xEE\xEF.\r\n\xEA\xEE\xEF\xE5\xE9\xEA\xE0\r\n\xEA\xEE\xEF\xE5\xE9\xEA\xE8\r\n"
    "\xEA\xEE\xEF\xE5\xE5\xEA\r\n";

Session Opened(const TempData& temp, const QString& path) {
  Session session;
  session.chosen_base = path;
  EXPECT_TRUE(OpenDatabase(session, temp.Data()));
  return session;
}

TEST(Session, OpeningFillsTheListsFromTheFirstLinesOfRecords) {
  TempData temp;
  CreateDatabase(temp.Data(), u"А"_s);
  temp.PutLines(u"0001\\склад.usd"_s, {u"Главный склад"_s, u"Лавка"_s});
  QStringList suppliers = {u"П1"_s};
  suppliers += QStringList(13, u"x"_s);
  suppliers += u"П2"_s;  // cut after its first line
  temp.PutLines(u"0001\\SPR\\post.spr"_s, suppliers);
  temp.PutLines(u"0001\\SPR\\klient.spr"_s, QStringList{u"К1"_s} + QStringList(13, u"y"_s));
  temp.PutLines(u"0001\\currency.usd"_s, {u"$"_s});
  const Session session = Opened(temp, u"0001\\"_s);
  EXPECT_EQ(session.base_path, u"0001\\"_s);
  EXPECT_EQ(session.currency_name, u"$"_s);
  EXPECT_EQ(session.warehouses, (QStringList{u"Главный склад"_s, u"Лавка"_s}));
  EXPECT_EQ(session.Parties(PartyKind::kSupplier), (QStringList{u"П1"_s, u"П2"_s}));
  EXPECT_EQ(session.Parties(PartyKind::kClient), QStringList{u"К1"_s});
  EXPECT_EQ(session.Parties(PartyKind::kFirm), QStringList{u"Ваша фирма"_s});
}

TEST(Session, AMissingCurrencyIsWrittenAnewAndNothingElse) {
  TempData temp;
  CreateDatabase(temp.Data(), u"А"_s);
  const auto whole = temp.Tree();
  for (const char* file : {"currency.usd", "склад.usd", "SPR/firma.spr", "SPR/post.spr"}) {
    QFile::remove(temp.Root() + u"/0001/"_s + QString::fromUtf8(file));
  }
  auto expected = temp.Tree();
  expected["0001/currency.usd"] = whole.at("0001/currency.usd");
  EXPECT_EQ(expected["0001/currency.usd"], kRoubles);
  const Session session = Opened(temp, u"0001\\"_s);
  EXPECT_EQ(session.currency_name, u"руб."_s);
  EXPECT_TRUE(session.warehouses.isEmpty());
  EXPECT_TRUE(session.Parties(PartyKind::kFirm).isEmpty());
  EXPECT_EQ(temp.Tree(), expected);
}

TEST(Session, AnEmptyCurrencyFileIsNotRepaired) {
  TempData temp;
  temp.Put(u"0001\\currency.usd"_s, "");
  EXPECT_EQ(Opened(temp, u"0001\\"_s).currency_name, QString());
  EXPECT_EQ(temp.Bytes(u"0001\\currency.usd"_s), "");
}

TEST(Session, WhatIsNoDatabaseIsNotOpened) {
  TempData temp;
  temp.Put(u"0001\\SPR\\post.spr"_s, "x");
  const auto before = temp.Tree();
  for (const QString& path : {u""_s, u"0002\\"_s, u"0001"_s, u"0001\\SPR\\"_s, u"..\\"_s, u"/\\"_s,
                              u"0001\\SPR\\post.spr\\"_s}) {
    Session session;
    session.chosen_base = path;
    EXPECT_FALSE(OpenDatabase(session, temp.Data())) << path.toStdString();
  }
  EXPECT_EQ(temp.Tree(), before);
}

TEST(Session, ClosingEmptiesTheListsAndLeavesTheRole) {
  TempData temp;
  CreateDatabase(temp.Data(), u"А"_s);
  Session session = Opened(temp, u"0001\\"_s);
  session.role = UserRole::kSeller;
  CloseDatabase(session);
  EXPECT_FALSE(session.IsOpen());
  EXPECT_TRUE(session.warehouses.isEmpty() && session.Parties(PartyKind::kFirm).isEmpty());
  EXPECT_TRUE(session.IsSeller());
}

}  // namespace
}  // namespace kladez
