#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include "books/store/SettingsStore.h"
#include "ui/controls/ListRows.h"
#include "ui/controls/Look.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/RememberedSizes.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TEST(Look, ThinGapsPartTheThousandsOfNumbersAlone) {
  const struct {
    QStringView text;
    QStringView shown;
  } cases[] = {{u"1234567.50", u"1\u2009234\u2009567.50"},
               {u"-123456", u"-123\u2009456"},
               {u"-1234.5", u"-1\u2009234.5"},
               {u"999.99", u"999.99"},
               {u"12.3456", u"12.3456"},
               {u"1e10", u"1e10"},
               {u"1234 кг", u"1234 кг"},
               {u"05.03.2026", u"05.03.2026"},
               {u"", u""},
               {u"-", u"-"}};
  for (const auto& c : cases) EXPECT_EQ(WithThinGaps(c.text.toString()), c.shown.toString());
}

TEST(Look, FiguresOfANumberHaveOneWidth) {
  for (const QString& family : {QApplication::font().family(), u"DejaVu Serif"_s, u"Cantarell"_s}) {
    const QFontMetricsF metrics(look::NumberFont(QFont(family, 11)));
    for (const char figure : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9'}) {
      EXPECT_NEAR(metrics.horizontalAdvance(QLatin1Char(figure)), metrics.horizontalAdvance(u'0'),
                  0.01);
    }
  }
}

TEST(Look, WhatIsPaintedFollowsTheGround) {
  QLabel note;
  look::MakeQuiet(&note);
  for (const auto scheme : {look::Scheme::kDark, look::Scheme::kLight}) {
    look::UseScheme(scheme);
    const bool dark = scheme == look::Scheme::kDark;
    EXPECT_EQ(look::IsDark(), dark);
    EXPECT_EQ(note.palette().color(QPalette::WindowText),
              dark ? look::kQuiet.dark : look::kQuiet.light);
  }
  look::UseScheme(look::Scheme::kSystem);
  const QPalette colours = QApplication::palette();
  EXPECT_GE(
      look::Contrast(colours.color(QPalette::Highlight), colours.color(QPalette::HighlightedText)),
      4.5);
  EXPECT_NEAR(look::Contrast(Qt::black, Qt::white), 21, 0.01);
}

TEST(Look, AWindowKeepsTheSizeThatItWasGivenAndOpensOnTheDisplay) {
  const QTemporaryDir folder;
  SettingsStore settings(folder.filePath(u"settings.ini"_s));
  const RememberedSizes remembered(settings);
  const QRect room = QApplication::primaryScreen()->availableGeometry();
  const auto open = [](QDialog& dialog) {
    dialog.setObjectName(u"editor"_s);
    dialog.show();
  };
  {
    QDialog dialog;
    dialog.resize(300, 200);
    open(dialog);
    dialog.resize(420, 310);
  }
  {
    QDialog dialog;
    dialog.resize(300, 200);
    open(dialog);
    EXPECT_EQ(dialog.size(), QSize(420, 310));
    dialog.resize(room.size() + QSize(500, 500));
    dialog.hide();
    open(dialog);
    EXPECT_TRUE(room.contains(dialog.frameGeometry()));
    EXPECT_EQ(dialog.frameGeometry().width(), room.width());
  }
}

}  // namespace
}  // namespace kladez
