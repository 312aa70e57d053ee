// A writing command that is added later must not be forgotten: every place in the sources that
// gathers changes has its command in the table, and nothing else in them writes to the disk.

#include <set>

#include "WritingCommands.h"

namespace kladez {
namespace {

// The files below src/ that hold one of the words.
std::set<std::string> SourcesWith(const QStringList& words) {
  const QString root = QStringLiteral(KLADEZ_SOURCE);
  std::set<std::string> found;
  QDirIterator walk(root, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    QFile file(walk.next());
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QString text = QString::fromUtf8(file.readAll());
    for (const QString& word : words) {
      if (text.contains(word)) found.insert(file.fileName().mid(root.size() + 1).toStdString());
    }
  }
  return found;
}

TEST(WritingPlaces, EachHasItsCommandInTheTableOfFaults) {
  std::set<std::string> places = SourcesWith({u"SaveSet save"_s});
  for (const WritingCommand& command : WritingCommands()) {
    EXPECT_TRUE(places.contains(command.source)) << command.source << " writes no more";
  }
  for (const WritingCommand& command : WritingCommands()) places.erase(command.source);
  // One file each, whose loss loses nothing: the ticks of the picker (as of the price list above),
  // the scratch price list at the end of a run, yesterday's chart.
  for (const char* scratch : {"screens/directories/GoodsPicker.cpp", "shell/MainWindow.cpp",
                              "screens/reports/ChartPrinting.cpp"}) {
    EXPECT_EQ(places.erase(scratch), 1u) << scratch;
  }
  EXPECT_EQ(places.erase("demo/DemoBooks.cpp"), 1u);  // into an empty directory
  for (const std::string& place : places) ADD_FAILURE() << place << " has no command in the table";
}

TEST(WritingPlaces, NothingElseWritesToTheDisk) {
  const std::set<std::string> writers = SourcesWith(
      {u"WriteOnly"_s, u"ReadWrite"_s, u"ofstream"_s, u"QSaveFile"_s, u"O_WRONLY"_s, u"fopen"_s});
  const std::set<std::string> known = {
      "books/store/OutsideFile.cpp",  // a table or page where the user wants it
      "system/SystemCallsPosix.cpp",  // what SaveSet and the copies are made of
      "viewer/paper/Output.cpp"};     // a PDF file where the user wants it
  EXPECT_EQ(writers, known);
}

}  // namespace
}  // namespace kladez
