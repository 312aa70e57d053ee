#include <QMenuBar>

#include "MainWindowShown.h"

namespace kladez {
namespace {

using MainMenus = MainWindowShown;

TEST_F(MainMenus, SellerFindsHisMenusGreyedButTheLinksOpen) {
  StartOpen(UserRole::kSeller);
  for (const QString& name :
       {u"mnu_Sklad_P"_s, u"mnu_Sklad_VO"_s, u"mnu_Sklad_ZO"_s, u"mnu_Otchet"_s, u"mnu_Sprav"_s}) {
    EXPECT_FALSE(Entry(name)->isEnabled()) << name.toStdString();
  }
  for (const QString& name :
       {u"mnu_Sklad"_s, u"mnu_Sklad_NT"_s, u"mnu_Sklad_R"_s, u"mnu_Sklad_PL"_s}) {
    EXPECT_TRUE(Entry(name)->isEnabled()) << name.toStdString();
  }
  for (int i = 0; i <= 17; ++i) {
    EXPECT_TRUE(Find<QAbstractButton>(Panel("Picture1"), u"go%1"_s.arg(i).toUtf8().constData())
                    ->isEnabled());
  }
  ClickPanel("go12");
  EXPECT_EQ(ChildName(), u"sprTovar"_s);
  CurrentSession().role = UserRole::kDirector;
  window_.OpenDatabase();
  EXPECT_TRUE(Entry(u"mnu_Sklad_P"_s)->isEnabled() && Entry(u"mnu_Otchet"_s)->isEnabled());
}

TEST_F(MainMenus, EveryMenuEntryBearsItsCaption) {
  const std::vector<std::pair<QString, QString>> captions = {
      {u"mnuFileCreate"_s, u"Создать..."_s},
      {u"mnuFileOpen"_s, u"Открыть..."_s},
      {u"mnubases"_s, u"Базы данных..."_s},
      {u"mnuimp"_s, u"Импорт..."_s},
      {u"arch"_s, u"Резервное копирование..."_s},
      {u"reparch"_s, u"Восстановить..."_s},
      {u"mnuFileClose"_s, u"Закрыть"_s},
      {u"mnuFileExit"_s, u"Выход"_s},
      {u"mnu_Sklad"_s, u"Склад"_s},
      {u"mnu_Sklad_NT"_s, u"Наличие товаров..."_s},
      {u"mnu_Sklad_P"_s, u"Приход..."_s},
      {u"mnu_Sklad_R"_s, u"Расход..."_s},
      {u"mnu_Sklad_VO"_s, u"Внутреннее перемещение..."_s},
      {u"mnu_Sklad_PL"_s, u"Прайс-лист..."_s},
      {u"mnu_Sklad_ZO"_s, u"Занесение остатков..."_s},
      {u"mnu_Otchet"_s, u"Отчеты"_s},
      {u"mnu_Otchet_OPP"_s, u"Отчет по продажам..."_s},
      {u"mnu_Otchet_RPVT"_s, u"Скорость реализации..."_s},
      {u"mnu_Otchet_GP"_s, u"График продаж..."_s},
      {u"mnu_Otchet_SR"_s, u"График реализации по видам товара..."_s},
      {u"mnu_Otchet_DB"_s, u"Поступление/реализация..."_s},
      {u"mnu_Sprav"_s, u"Справочники"_s},
      {u"mnu_Sprav_O"_s, u"Фирмы..."_s},
      {u"mnu_Sprav_T"_s, u"Товары..."_s},
      {u"mnu_Sprav_P"_s, u"Поставщики..."_s},
      {u"mnu_Sprav_K"_s, u"Клиенты..."_s},
      {u"mnu_Sprav_S"_s, u"Склады..."_s},
      {u"mnu_Sprav_OV"_s, u"Основная валюта..."_s},
      {u"mnuHelp"_s, u"Справка по Kladez 4.8..."_s},
      {u"mnAbout"_s, u"О программе..."_s},
  };
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(Entry(name)->text().remove(u'&'), caption);
  }
}

TEST_F(MainMenus, LettersOfAMenuAreNotUsedTwice) {
  for (QMenu* menu : window_.findChildren<QMenu*>()) {
    QSet<QChar> letters;
    for (const QAction* action : menu->actions()) {
      if (action->isSeparator()) continue;
      const qsizetype mark = action->text().indexOf(u'&');
      ASSERT_GE(mark, 0) << action->text().toStdString();
      const QChar letter = action->text().at(mark + 1).toLower();
      EXPECT_FALSE(letters.contains(letter)) << action->text().toStdString();
      letters.insert(letter);
    }
  }
}

TEST_F(MainMenus, PanelFollowsTheHeightAndTheLandingPictureTheSize) {
  StartOpen();
  for (const int height : {740, 900}) {
    window_.resize(1200, height);
    QCoreApplication::processEvents();
    EXPECT_EQ(Panel("Picture1")->height(), window_.centralWidget()->height() - 1350 / 15);
  }
  Entry(u"mnuFileClose"_s)->trigger();
  QCoreApplication::processEvents();
  const QWidget* picture = Find<QWidget>(window_.Child(), "Picture1");
  EXPECT_EQ(picture->height(), window_.centralWidget()->height() - 420 / 15);
  EXPECT_EQ(picture->width(), window_.centralWidget()->width() - 180 / 15);
}

TEST_F(MainMenus, PointerLightsOneLinkOfThePanel) {
  StartOpen();
  auto* stock = Find<QAbstractButton>(Panel("Picture1"), "go0");
  auto* receipts = Find<QAbstractButton>(Panel("Picture1"), "go1");
  const auto shows = [](QWidget* link, QRgb color) {
    const QImage image = link->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) == color) return true;
      }
    }
    return false;
  };
  // Colours are told as blue, green, red: 0xC0E0FF and 0xC0FFFF.
  const QRgb peach = qRgb(0xFF, 0xE0, 0xC0);
  const QRgb yellow = qRgb(0xFF, 0xFF, 0xC0);
  QTest::mouseMove(stock);
  QTest::mouseMove(receipts);
  EXPECT_TRUE(QTest::qWaitFor([&] { return shows(receipts, peach); }));
  EXPECT_FALSE(shows(stock, peach));
  EXPECT_TRUE(shows(stock, yellow));
  QTest::mouseMove(Panel("Picture1"), QPoint(2, 2));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !shows(receipts, peach); }));
}

TEST_F(MainMenus, TheStripLeadsToItsScreens) {
  StartOpen();
  const std::tuple<const char*, QString, QString> links[] = {
      {"Label11", u"Наличие товаров"_s, u"Sklad"_s},
      {"Label10", u"Приход"_s, u"TovPrih"_s},
      {"Label8", u"Расход"_s, u"TovUhod"_s},
      {"Label15", u"Внутреннее перемещение"_s, u"vnutr"_s},
      {"Label9", u"Прайс-лист"_s, u"Price"_s},
      {"Label13", u"Справочник товаров"_s, u"sprTovar"_s},
      {"Label14", u"Главная"_s, u"Main"_s}};
  for (const auto& [name, caption, screen] : links) {
    EXPECT_EQ(Find<QAbstractButton>(Panel("Picture2"), name)->text(), caption);
    Click(Panel("Picture2"), name);
    EXPECT_EQ(ChildName(), screen);
  }
}

}  // namespace
}  // namespace kladez
