#include "TempData.h"
#include "books/printing/PrintOutDesk.h"
#include "books/store/DirectoryLock.h"

namespace kladez {
namespace {

// A long report is made before the directory is taken: another program saves meanwhile.
TEST(PrintOutDesk, NobodyWaitsForAPageThatIsBeingMade) {
  const TempData temp;
  const PrintOutDesk desk(temp.Data(), {});
  const QByteArray piece(100'000, 'x');
  desk.WriteInPieces(u"temp.htm"_s, [&](const ByteSink& sink) {
    sink(piece);
    EXPECT_NO_THROW(DirectoryLock(QFile::encodeName(temp.Root()), std::chrono::milliseconds(0)));
    sink("end");
  });
  EXPECT_EQ(temp.Bytes(u"temp.htm"_s), piece + "end");
}

TEST(PrintOutDesk, APageThatIsNotMadeLeavesTheOldOne) {
  TempData temp;
  temp.Put(u"temp.htm"_s, "old");
  EXPECT_THROW(PrintOutDesk(temp.Data(), {})
                   .WriteInPieces(u"temp.htm"_s,
                                  [](const ByteSink& sink) {
                                    sink("new");
                                    throw std::runtime_error("stop");
                                  }),
               std::runtime_error);
  EXPECT_EQ(temp.Bytes(u"temp.htm"_s), "old");
}

}  // namespace
}  // namespace kladez
