// Whatever a screen shows of its files, it shows as they are when it gets the keyboard back, and
// never writes over what came meanwhile.
#include "books/directories/DirectoryWorld.h"
#include "screens/directories/CurrencyDialog.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/GoodsPicker.h"
#include "screens/directories/PartyBrowser.h"
#include "screens/directories/WarehousesDialog.h"
#include "screens/prices/PricePicker.h"
#include "screens/prices/PriceScreen.h"
#include "screens/stock/OnHandScreen.h"
#include "screens/stock/documents/DocumentRegisterScreen.h"

namespace kladez {
namespace {

const QString kShop = u"Главный склад"_s;
const QString kGoods = u"spr\\товар.spr"_s;
const QString kClients = u"spr\\klient.spr"_s;

QStringList Client(const QString& name) { return QStringList{name} + QStringList(13, u"-"_s); }
QStringList Goods(const QString& name) { return {name, u"Индия"_s, {}, u"шт."_s, u"10.00"_s}; }

struct Followed {
  const char* name;
  std::function<QWidget*(AppContext&)> open;
  QString path;       // of a file that it shows
  QStringList added;  // what another program puts into it
  int after;          // so many lines
  // Work on the row selected, and the command that would save it; none where nothing can wait.
  std::function<void(QWidget*)> work = {};
  const char* save = nullptr;
};

void DeleteRow(QWidget* screen) {
  ModalAnswers answers({Press(QMessageBox::Yes)});
  QTest::keyClick(ListOf(screen), Qt::Key_Delete);
}

std::vector<Followed> AllFollowed() {
  const auto rename = [](QWidget* screen) {
    ModalAnswers answers({AnswerText(u"Лавка"_s)});
    QTest::keyClick(ListOf(screen), Qt::Key_Return);
  };
  return {
      {"goods", [](AppContext& c) { return new GoodsDirectoryScreen(c); }, kGoods,
       Goods(u"Астра"_s), 1, DeleteRow, "Command9"},
      {"goods to pick", [](AppContext& c) { return new GoodsPicker(c, PickFor::kReceipt); }, kGoods,
       Goods(u"Астра"_s), 1},
      {"clients", [](AppContext& c) { return new PartyBrowser(c, PartyKind::kClient, nullptr); },
       kClients, Client(u"Аист"_s), 0, DeleteRow, "ok"},
      {"on hand", [](AppContext& c) { return new OnHandScreen(c); }, kGoods, Goods(u"Астра"_s), 1},
      {"prices", [](AppContext& c) { return new PriceScreen(c); }, kGoods, Goods(u"Астра"_s), 1},
      {"prices to pick",
       [](AppContext& c) { return new PricePicker(c, u"Главный склад"_s, {}, nullptr); }, kGoods,
       Goods(u"Астра"_s), 1},
      {"receipts",
       [](AppContext& c) { return new DocumentRegisterScreen(c, DocumentKind::kReceipt); },
       kShop + u"\\PRH\\0000.prh"_s, u"0|22.11.2026|Поставщик|5.00|да|Чай|1|шт.|5.00"_lines, 0},
      // The last, as the other screens miss the directory of such a warehouse.
      {"warehouses",
       [](AppContext& c) { return new WarehousesDialog(c); },
       u"склад.usd"_s,
       {u"Двор"_s},
       0,
       rename,
       "ok"},
  };
}

class FollowedFilesTest : public testing::Test {
 protected:
  FollowedFilesTest() {
    world_.PutLines(kGoods, QStringList{u" Бакалея"_s} + Goods(u"Чай"_s) + Goods(u"Кофе"_s));
    world_.PutLines(kClients, Client(u"Волга"_s) + Client(u"Дон"_s));
    world_.PutLines(kShop + u"\\PRH\\0001.prh"_s,
                    u"1|22.11.2026|Поставщик|45.00|да|Чай|1|шт.|45.00"_lines);
    other_.setAttribute(Qt::WA_QuitOnClose, false);
  }

  // Somebody works elsewhere, and comes back.
  void ChangedElsewhere(const Followed& c, QWidget* screen) {
    ShowActive(&other_);
    QStringList lines = QFile::exists(world_.Data().Resolve(world_.CurrentSession().Path(c.path)))
                            ? world_.Lines(c.path)
                            : QStringList();
    lines = lines.mid(0, c.after) + c.added + lines.mid(c.after);
    world_.PutLines(c.path, lines);
    ShowActive(screen);
    QTest::qWait(100);
  }

  DirectoryWorld world_;
  QWidget other_;
};

TEST_F(FollowedFilesTest, AWindowThatGetsTheKeyboardBackShowsTheFileAsItIs) {
  for (const Followed& c : AllFollowed()) {
    SCOPED_TRACE(c.name);
    const std::unique_ptr<QWidget> screen(c.open(world_.Context()));
    ShowActive(screen.get());
    const auto* rows = ListOf(screen.get())->Records();
    const int before = rows->rowCount();
    ListOf(screen.get())->SelectRow(before - 1);
    const QStringList selected = RowTexts(screen.get(), before - 1);
    ChangedElsewhere(c, screen.get());
    EXPECT_EQ(rows->rowCount(), before + 1);
    EXPECT_EQ(RowTexts(screen.get(), ListOf(screen.get())->CurrentRow()), selected);
    EXPECT_FALSE(Find<QLabel>(screen.get(), "stale_note")->isVisible());
    screen->close();
  }
}

TEST_F(FollowedFilesTest, UnsavedWorkStaysAndIsNeverWrittenOverWhatIsNewer) {
  for (const Followed& c : AllFollowed()) {
    if (!c.work) continue;
    SCOPED_TRACE(c.name);
    const std::unique_ptr<QWidget> screen(c.open(world_.Context()));
    ShowActive(screen.get());
    const auto* rows = ListOf(screen.get())->Records();
    ListOf(screen.get())->SelectRow(rows->rowCount() - 1);
    c.work(screen.get());
    const int worked = rows->rowCount();
    ChangedElsewhere(c, screen.get());
    EXPECT_EQ(rows->rowCount(), worked);
    EXPECT_TRUE(Find<QLabel>(screen.get(), "stale_note")->isVisible());
    world_.Remember();
    {
      ModalAnswers answers({Press(QMessageBox::No)});
      Click(screen.get(), c.save);
    }
    EXPECT_EQ(rows->rowCount(), worked);
    ModalAnswers answers({Press(QMessageBox::Yes)});
    Click(screen.get(), c.save);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_FALSE(Find<QLabel>(screen.get(), "stale_note")->isVisible());
    EXPECT_TRUE(RowTexts(screen.get(), 0).contains(c.added[0]) ||
                RowTexts(screen.get(), 1).contains(c.added[0]));
    world_.ExpectUnchanged();
    screen->close();
  }
}

TEST_F(FollowedFilesTest, TheCurrencyFollowsItsFileTwoWays) {
  CurrencyDialog screen(world_.Context());
  ShowActive(&screen);
  const Followed file = {"", {}, u"currency.usd"_s, {u"тг."_s}, 0};
  ChangedElsewhere(file, &screen);
  EXPECT_EQ(TextOf(&screen, "form1"), u"тг."_s);
  Enter(&screen, "form1", u"долл."_s);
  ChangedElsewhere(file, &screen);
  EXPECT_EQ(TextOf(&screen, "form1"), u"долл."_s);
  ModalAnswers answers({Press(QMessageBox::Yes)});
  Click(&screen, "ok");
  EXPECT_EQ(TextOf(&screen, "form1"), u"тг."_s);
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(FollowedFilesTest, AFileThatIsGoneIsToldAtTheFootAndTheListStays) {
  GoodsDirectoryScreen screen(world_.Context());
  ShowActive(&screen);
  ShowActive(&other_);
  QFile::remove(world_.Data().Resolve(world_.CurrentSession().Path(kGoods)));
  ShowActive(&screen);
  QTest::qWait(100);
  EXPECT_TRUE(Find<QLabel>(&screen, "stale_note")->isVisible());
  EXPECT_EQ(ListOf(&screen)->Records()->rowCount(), 3);
}

}  // namespace
}  // namespace kladez
