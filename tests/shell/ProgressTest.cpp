#include <QProgressBar>
#include <algorithm>

#include "ScreenDriver.h"
#include "books/store/Catalogue.h"
#include "shell/MainWindow.h"

namespace kladez {
namespace {

// Notes each value that the bar shows while it is there.
class BarWatch : public QObject {
 public:
  explicit BarWatch(QProgressBar* bar) : bar_(bar) { bar->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) shown_.push_back(bar_->value());
    return false;
  }
  const std::vector<int>& Shown() const { return shown_; }

 private:
  QProgressBar* bar_;
  std::vector<int> shown_;
};

TEST(Progress, TheMainWindowShowsHowFarAPriceListIsLoaded) {
  ScreenWorld world;
  const TempData& temp = world.Temp();
  CreateDatabase(temp.Data(), u"Магазин"_s);
  QStringList goods;
  QStringList prices;
  for (int i = 0; i < 500; ++i) {
    const QString name = u"Чай %1"_s.arg(i);
    goods += {name, u"-"_s, u"-"_s, u"пач."_s, u"1.00"_s};
    prices += {name, u"пач."_s, u"1.00"_s, u"2.00"_s};
  }
  temp.PutLines(u"0001\\spr\\товар.spr"_s, goods);
  temp.PutLines(u"0001\\Главный склад\\PRICE\\0001.prc"_s, prices);
  world.Settings().Write(settings::kBaseName, u"0001\\"_s);
  MainWindow window(world.Context());
  window.Start(1);
  ShowActive(&window);
  auto* bar = Find<QProgressBar>(&window, "ProgressBar1");
  EXPECT_FALSE(bar->isVisible());

  const BarWatch watch(bar);
  Click(Find<QWidget>(&window, "Picture1"), "go4");
  EXPECT_EQ(window.Child()->objectName(), u"Price"_s);
  EXPECT_GT(watch.Shown().size(), 50u);
  EXPECT_TRUE(std::is_sorted(watch.Shown().begin(), watch.Shown().end()));
  EXPECT_FALSE(bar->isVisible());
}

}  // namespace
}  // namespace kladez
