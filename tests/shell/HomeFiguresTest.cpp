#include <sys/inotify.h>
#include <unistd.h>

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "screens/reports/ChartWidget.h"
#include "shell/HomeScreen.h"

namespace kladez {
namespace {

// Tells whether anything in a directory, or the directory itself, was opened.
class OpenWatch {
 public:
  explicit OpenWatch(const QString& directory) : queue_(::inotify_init1(IN_NONBLOCK)) {
    EXPECT_GE(::inotify_add_watch(queue_, QFile::encodeName(directory).constData(), IN_OPEN), 0);
  }
  ~OpenWatch() { ::close(queue_); }

  bool SawAny() {
    char events[4096];
    bool any = false;
    while (::read(queue_, events, sizeof events) > 0) any = true;
    return any;
  }

 private:
  int queue_;
};

class HomeFigures : public testing::Test, protected ScreenWorld {
 protected:
  HomeFigures() {
    books.Warehouses(u"Главный склад|Магазин"_lines);
    books.Ship(0, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"10.50"_s, {});
    books.Ship(1, u"0001.uhd"_s, u"21.11.2026"_s, u"0"_s, u"5.00"_s, {});
    books.Ship(1, u"0002.uhd"_s, u"01.02.2026"_s, u"0"_s, u"100"_s, {});
  }

  static QStringList Sums(QWidget* home) {
    QStringList sums;
    for (const char* name : {"Label18", "Label20", "Label15"}) {
      sums << Find<QLabel>(home, name)->text();
    }
    return sums;
  }

  SmallBooks books{Temp().Data(), CurrentSession()};
};

TEST_F(HomeFigures, EachActivationCountsAnew) {
  HomeScreen home(Context(), nullptr);
  ShowActive(&home);
  EXPECT_FALSE(Find<QWidget>(&home, "Picture3")->isHidden()) << "an empty chart is covered";
  home.Activate();
  EXPECT_EQ(Sums(&home), (QStringList{u"10.50"_s, u"15.50"_s, u"115.50"_s}));
  EXPECT_TRUE(Find<QWidget>(&home, "Picture3")->isHidden());
  const ChartGrid& grid = Find<ChartWidget>(&home, "MSChart1")->Grid();
  ASSERT_EQ(grid.RowCount(), 30);
  EXPECT_EQ(grid.Cell(20, 0), 5.0);
  EXPECT_EQ(grid.Cell(21, 0), 10.5);
  books.Ship(0, u"0002.uhd"_s, u"22.11.2026"_s, u"0"_s, u"1.00"_s, {});
  home.Activate();
  EXPECT_EQ(Sums(&home), (QStringList{u"11.50"_s, u"16.50"_s, u"116.50"_s}));
}

TEST_F(HomeFigures, EnterOpensTheDocumentOfTheMorning) {
  HomeScreen home(Context(), nullptr);
  ShowActive(&home);
  home.Activate();
  auto* morning = Find<RecordList>(&home, "morning");
  EXPECT_EQ(morning->Records()->Text(1, 0), u"N 7, Клиент"_s);
  morning->SelectRow(1);
  QString opened;
  ModalAnswers answers{[&](QWidget* dialog) {
    opened = dialog->objectName();
    QTest::keyClick(dialog, Qt::Key_Escape);
  }};
  QTest::keyClick(morning, Qt::Key_Return);
  EXPECT_EQ(opened, u"TovUhod_Ass"_s);
  EXPECT_FALSE(Find<QWidget>(&home, "first_steps")->isVisible()) << "sold on several days";
}

TEST_F(HomeFigures, WithTheBoxClearedNoDocumentIsOpened) {
  Settings().Write(settings::kReport, u"0"_s);
  HomeScreen home(Context(), nullptr);
  ShowActive(&home);
  OpenWatch watch(Temp().Root() + u"/0001/Главный склад/UHD"_s);
  home.Activate();
  EXPECT_FALSE(watch.SawAny());
  EXPECT_FALSE(Find<QWidget>(&home, "MSChart1")->isVisible());
  Find<QCheckBox>(&home, "Check2")->click();
  EXPECT_TRUE(watch.SawAny());
  EXPECT_TRUE(Find<QWidget>(&home, "MSChart1")->isVisible());
  EXPECT_EQ(Settings().Read(settings::kReport), u"1"_s);
}

}  // namespace
}  // namespace kladez
