#include <algorithm>
#include <memory>
#include <random>
#include <thread>

#include "TempData.h"
#include "books/store/FileNames.h"
#include "formats/Ordering.h"

namespace kladez {
namespace {

// Names as they are told to be ordered, without a thought for speed.
QStringList Ordered(QStringList names) {
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    return std::pair(FoldCase(a), a) < std::pair(FoldCase(b), b);
  });
  return names;
}

TEST(FileNames, BytesAreInTheOrderOfTheUpperCasedTexts) {
  const TempData temp;
  // From signs on both sides of the letters, of all cases, lengths in UTF-8 and planes.
  const QStringList signs = {
      u"0"_s, u"9"_s, u"7"_s, u"A"_s,      u"a"_s,      u"z"_s,          u"Z"_s,  u"_"_s,
      u"~"_s, u" "_s, u"а"_s, u"А"_s,      u"Ё"_s,      u"ё"_s,          u"я"_s,  u"№"_s,
      u"ß"_s, u"ў"_s, u"ı"_s, u"\uFFFD"_s, u"\uE000"_s, u"\U0001F4A0"_s, u"00"_s, u"aaaaaaaa"_s};
  std::mt19937 random(1);
  QStringList names = {u"A.prh"_s, u"a.prh"_s, u"a.PRH"_s, u"Ёлка.prh"_s, u"ёлка.prh"_s};
  for (int i = 0; i < 600; ++i) {
    QString name;
    for (unsigned length = 1 + random() % 4; length > 0; --length) {
      name += signs[static_cast<qsizetype>(random() % static_cast<size_t>(signs.size()))];
    }
    name += random() % 2 == 0 ? u".prh"_s : u".PrH"_s;
    if (!names.contains(name)) names.append(name);
  }
  QDir(temp.Root()).mkdir(u"d"_s);
  for (const QString& name : names) {  // past the paths that mind no case
    EXPECT_TRUE(QFile(temp.Root() + u"/d/"_s + name).open(QIODevice::WriteOnly));
  }
  temp.Put(u"d\\1.prhx"_s, {});
  temp.Put(u"d\\рh"_s, {});
  EXPECT_EQ(temp.Data().List(u"d"_s, u".prh"), Ordered(names));
}

// A visitor that gives way is taken for one that waits for the disk, so that threads read ahead.
TEST(FileNames, ThreadsThatReadAheadChangeNothing) {
  const TempData temp;
  constexpr int kFiles = 700;
  for (int i = 0; i < kFiles; ++i) {
    temp.Put(u"d\\%1.prh"_s.arg(i, 4, 10, QChar(u'0')), QByteArray::number(i).repeated(1 + i % 9));
  }
  // Longer than one read, and exactly as long.
  temp.Put(u"d\\0001.prh"_s, QByteArray(100'000, 'x'));
  temp.Put(u"d\\0002.prh"_s, QByteArray(1 << 14, 'y'));
  for (const int stop : {kFiles, 100}) {
    int count = 0;
    temp.Data().ForEachFile(u"d"_s, u".prh", [&](const DataDir::ListedFile& file) {
      std::this_thread::sleep_for(std::chrono::microseconds(1));
      const int number = file.name.first(4).toInt();
      EXPECT_EQ(number, count);
      const QByteArray wanted = number == 1   ? QByteArray(100'000, 'x')
                                : number == 2 ? QByteArray(1 << 14, 'y')
                                              : QByteArray::number(number).repeated(1 + number % 9);
      if (count == 300) QFile::remove(temp.Data().Resolve(u"d\\0400.prh"_s));
      // What goes while it is read ahead is told as what can't be read.
      EXPECT_EQ(file.bytes.value_or("none").toByteArray(), number == 400 ? "none" : wanted);
      return ++count < stop;
    });
    EXPECT_EQ(count, stop);
  }
}

}  // namespace
}  // namespace kladez
