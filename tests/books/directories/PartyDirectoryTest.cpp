#include "DirectoryWorld.h"
#include "books/directories/PartyDirectory.h"

namespace kladez {
namespace {

TEST(PartyDirectory, UnreadableFileIsNotTakenForAnEmptyList) {
  DirectoryWorld world;
  const QString file = world.Data().Resolve(u"0001\\spr\\post.spr"_s);
  ASSERT_TRUE(QFile::remove(file));
  EXPECT_TRUE(
      PartyDirectory(world.Data(), world.TheSession(), PartyKind::kSupplier).Rows().empty());
  // What leads out of the tree is refused rather than read or replaced.
  ASSERT_TRUE(QFile::link(u"/etc/hostname"_s, file));
  EXPECT_THROW(PartyDirectory(world.Data(), world.TheSession(), PartyKind::kSupplier),
               std::filesystem::filesystem_error);
}

TEST(PartyDirectory, FailedSaveLeavesTheNamesOfTheSession) {
  DirectoryWorld world;
  PartyDirectory directory(world.Data(), world.TheSession(), PartyKind::kFirm);
  directory.Remove(0);
  world.Protect(u"spr\\firma.spr"_s);
  EXPECT_THROW(directory.Save(), std::filesystem::filesystem_error);
  EXPECT_EQ(world.TheSession().Parties(PartyKind::kFirm), QStringList{u"Ваша фирма"_s});
}

}  // namespace
}  // namespace kladez
