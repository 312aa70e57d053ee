#include "DirectoryWorld.h"
#include "books/directories/PartyDirectory.h"

namespace kladez {
namespace {

TEST(PartyDirectory, UnreadableFileIsNotTakenForAnEmptyList) {
  DirectoryWorld world;
  const QString file = world.Data().Resolve(u"0001\\spr\\post.spr"_s);
  ASSERT_TRUE(QFile::remove(file));
  EXPECT_TRUE(
      PartyDirectory(world.Data(), world.CurrentSession(), PartyKind::kSupplier).Rows().empty());
  // What leads out of the tree is refused rather than read or replaced.
  ASSERT_TRUE(QFile::link(u"/etc/hostname"_s, file));
  EXPECT_THROW(PartyDirectory(world.Data(), world.CurrentSession(), PartyKind::kSupplier),
               std::filesystem::filesystem_error);
}

TEST(PartyDirectory, FailedSaveLeavesTheNamesOfOpenBooks) {
  DirectoryWorld world;
  PartyDirectory directory(world.Data(), world.CurrentSession(), PartyKind::kFirm);
  directory.Remove(0);
  world.Protect(u"spr\\firma.spr"_s);
  EXPECT_THROW(directory.Save(), std::filesystem::filesystem_error);
  EXPECT_EQ(world.CurrentSession().Parties(PartyKind::kFirm), QStringList{u"Ваша фирма"_s});
}

TEST(PartyDirectory, TermsFollowTheirClients) {
  DirectoryWorld world;
  const auto party = [](const QString& name) { return Party{name} + Party(13, QString()); };
  const auto found = [&](const QString& client) -> QString {
    const ClientTerms terms = FindTerms(world.Data(), world.CurrentSession(), client);
    return terms.price_list + u'|' + terms.discount;
  };
  PartyDirectory list(world.Data(), world.CurrentSession(), PartyKind::kClient);
  while (!list.Rows().empty()) list.Remove(0);
  for (const QString& name : {u"А"_s, u"Б"_s, u"В"_s}) list.Add(party(name), {name, u"5"_s});
  list.Add(party(u"Г"_s), {{}, u"150"_s});
  list.Save();
  EXPECT_FALSE(list.IsChanged());
  EXPECT_EQ(found(u"Б"_s), u"Б|5"_s);
  EXPECT_EQ(found(u"Г"_s), u"|"_s) << "more than all";
  // Two swap their names, one goes, one is asked for another discount.
  list.Change(0, party(u"Б"_s));
  list.Change(1, party(u"А"_s), ClientTerms{u"Б"_s, u"7"_s});
  EXPECT_TRUE(list.IsChanged());
  list.Remove(2);
  list.Save();
  EXPECT_EQ(found(u"Б"_s), u"А|5"_s);
  EXPECT_EQ(found(u"А"_s), u"Б|7"_s);
  EXPECT_EQ(found(u"В"_s), u"|"_s);
  PartyDirectory suppliers(world.Data(), world.CurrentSession(), PartyKind::kSupplier);
  suppliers.Add(party(u"А"_s));
  suppliers.Save();
  EXPECT_EQ(found(u"А"_s), u"Б|7"_s) << "a supplier of that name is somebody else";
}

}  // namespace
}  // namespace kladez
