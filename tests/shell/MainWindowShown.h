// The main window over a set of books made for the test.
#pragma once

#include <QMenu>

#include "ScreenDriver.h"
#include "books/store/Catalogue.h"
#include "shell/MainWindow.h"

namespace kladez {

inline const QStringList kDatabaseMenus = {u"mnu_Sklad"_s, u"mnu_Otchet"_s, u"mnu_Sprav"_s};

class MainWindowShown : public testing::Test {
 protected:
  void SetUp() override { window_.resize(1024, 740); }

  const DataDir& Data() { return world_.Temp().Data(); }
  Session& CurrentSession() { return world_.CurrentSession(); }
  QString Setting(const struct Setting& setting) { return world_.Settings().Read(setting); }

  // Starts with a Database open, as after a run before.
  void StartOpen(UserRole role = UserRole::kNone) {
    CreateDatabase(Data(), u"Первая"_s);
    world_.Settings().Write(settings::kBaseName, u"0001\\"_s);
    world_.Settings().Write(settings::kBaseTitle, u"Первая"_s);
    CurrentSession().role = role;
    Start();
  }
  void Start() {
    window_.Start(1);
    ShowActive(&window_);
  }

  QAction* Entry(const QString& name) {
    if (auto* menu = window_.findChild<QMenu*>(name)) return menu->menuAction();
    auto* action = window_.findChild<QAction*>(name);
    EXPECT_NE(action, nullptr) << name.toStdString();
    return action;
  }
  QString ChildName() {
    return window_.Child() != nullptr ? window_.Child()->objectName() : QString();
  }
  QWidget* Panel(const char* name) { return Find<QWidget>(&window_, name); }
  int Children() {
    int count = 0;
    for (const char16_t* name :
         {u"Main", u"main2", u"Sklad", u"Price", u"sprTovar", u"TovPrih", u"TovUhod", u"vnutr"}) {
      count += int(window_.findChildren<QWidget*>(QString::fromUtf16(name)).size());
    }
    return count;
  }
  void ExpectLanding() {
    EXPECT_EQ(ChildName(), u"main2"_s);
    EXPECT_EQ(window_.windowTitle(), u"Kladez"_s);
    for (const QString& menu : kDatabaseMenus) EXPECT_FALSE(Entry(menu)->isVisible());
    EXPECT_FALSE(Entry(u"mnuFileClose"_s)->isEnabled());
    EXPECT_FALSE(Entry(u"mnuimp"_s)->isEnabled());
    EXPECT_FALSE(Panel("Picture1")->isVisible());
    EXPECT_FALSE(Panel("Picture2")->isVisible());
  }
  // The panel has links of the same names as the home screen.
  void ClickPanel(const char* link) { Click(Panel("Picture1"), link); }

  ScreenWorld world_;
  MainWindow window_{world_.Context()};
};

}  // namespace kladez
