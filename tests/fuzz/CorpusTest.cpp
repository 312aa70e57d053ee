// Readers meet the files that fuzzing has kept, and damaged ones: none may crash, hang or break a
// promise, whatever lies in the file.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <random>

#include "Targets.h"

namespace kladez {
namespace {

class Corpus : public testing::TestWithParam<FuzzTarget> {
 protected:
  static std::vector<QByteArray> Files() {
    const QDir directory(QString::fromUtf8(KLADEZ_CORPUS) + u'/' +
                         QString::fromLatin1(GetParam().name));
    std::vector<QByteArray> files;
    for (const QFileInfo& info : directory.entryInfoList(QDir::Files, QDir::Name)) {
      QFile file(info.filePath());
      EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(info.filePath());
      files.push_back(file.readAll());
    }
    return files;
  }
};

TEST_P(Corpus, KeptFilesAreRead) {
  const auto files = Files();
  ASSERT_FALSE(files.empty()) << "run make_corpus";
  for (const QByteArray& bytes : files) EXPECT_NO_THROW(GetParam().run(bytes)) << bytes.constData();
}

TEST_P(Corpus, AFileCutAnywhereIsRead) {
  for (const QByteArray& bytes : Files()) {
    for (qsizetype size = 0; size < bytes.size(); ++size) {
      EXPECT_NO_THROW(GetParam().run(bytes.first(size))) << size << " of " << bytes.constData();
    }
  }
}

TEST_P(Corpus, RandomBytesAreRead) {
  std::mt19937 random(1251);
  for (int round = 0; round < 200; ++round) {
    QByteArray bytes(static_cast<qsizetype>(random() % 500), Qt::Uninitialized);
    for (char& byte : bytes) byte = static_cast<char>(random());
    // Half of them with lines.
    for (qsizetype at = 0; round % 2 == 0 && at + 1 < bytes.size(); at += 1 + random() % 9) {
      bytes.replace(at, 2, "\r\n");
    }
    EXPECT_NO_THROW(GetParam().run(bytes)) << bytes.toHex().constData();
  }
}

// Neither one line of 50 MB nor half a million lines may take memory or time out of hand.
TEST_P(Corpus, HugeFilesAreRead) {
  const qsizetype huge = GetParam().is_file ? 50'000'000 : 500'000;
  EXPECT_NO_THROW(GetParam().run(QByteArray(huge, '1')));
  const QByteArray line = QByteArray(98, '1') + "\r\n";
  EXPECT_NO_THROW(GetParam().run(line.repeated(huge / line.size())));
}

std::string NameOf(const testing::TestParamInfo<FuzzTarget>& target) { return target.param.name; }

template <typename Targets>
auto Each(const Targets& targets) {
  return testing::ValuesIn(targets.begin(), targets.end());
}

INSTANTIATE_TEST_SUITE_P(, Corpus, Each(FuzzTargets()), NameOf);
INSTANTIATE_TEST_SUITE_P(Viewer, Corpus, Each(ViewerFuzzTargets()), NameOf);

}  // namespace
}  // namespace kladez
