#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "books/reports/ChartTestGrids.h"
#include "screens/reports/ChartWidget.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class ChartWidgetTest : public testing::Test {
 protected:
  ChartWidgetTest() {
    ChartGrid grid = NumberedChartGrid(u"График реализации товара <b> за 2026 год"_s, 12,
                                       {u"Выручка"_s, u"Прибыль"_s});
    grid.Cell(4, 0) = 1250000.5;
    grid.Cell(4, 1) = -3.125;
    widget_.SetGrid(grid);
    widget_.SetKind(ChartKind::k2DBars);
    widget_.resize(600, 400);
    widget_.show();
  }

  QPoint RowPoint(int row) const {
    const ChartLayout layout =
        LayOutChart(widget_.rect(), widget_.Grid(), widget_.Kind(), DefaultChartStyle());
    return QPointF(layout.Middle(row), layout.front.center().y()).toPoint();
  }

  void AskForTip(QPoint at) {
    QHelpEvent ask(QEvent::ToolTip, at, widget_.mapToGlobal(at));
    QApplication::sendEvent(&widget_, &ask);
  }

  ChartWidget widget_;
};

TEST_F(ChartWidgetTest, TipTellsTheExactValuesUnderThePointer) {
  AskForTip(RowPoint(4));
  const QString tip = QToolTip::text().replace(QChar::Nbsp, u' ');
  EXPECT_TRUE(tip.contains(u"Выручка: 1 250 000.50"_s)) << qPrintable(tip);
  EXPECT_TRUE(tip.contains(u"Прибыль: -3.125"_s)) << qPrintable(tip);
}

TEST_F(ChartWidgetTest, PointedRowIsMarkedUntilThePointerLeaves) {
  const QImage before = widget_.grab().toImage();
  QTest::mouseMove(&widget_, RowPoint(4));
  EXPECT_EQ(widget_.accessibleDescription(), u"5\nВыручка: 1 250 000.50\nПрибыль: -3.125"_s);
  EXPECT_NE(widget_.grab().toImage(), before);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&widget_, &leave);
  EXPECT_EQ(widget_.accessibleDescription(), QString());
  EXPECT_EQ(widget_.grab().toImage(), before);
}

TEST_F(ChartWidgetTest, RowsAreReachedWithoutAPointer) {
  const struct {
    Qt::Key key;
    QString row;
  } steps[] = {{Qt::Key_Left, u"12"_s}, {Qt::Key_Right, u"12"_s}, {Qt::Key_Left, u"11"_s},
               {Qt::Key_Home, u"1"_s},  {Qt::Key_Left, u"1"_s},   {Qt::Key_Right, u"2"_s},
               {Qt::Key_End, u"12"_s}};
  for (const auto& [key, row] : steps) {
    QTest::keyClick(&widget_, key);
    EXPECT_EQ(widget_.accessibleDescription().section(u'\n', 0, 0), row);
  }
  EXPECT_EQ(widget_.accessibleName(), u"График реализации товара <b> за 2026 год"_s);
}

TEST_F(ChartWidgetTest, NewGridForgetsTheMarkedRow) {
  QTest::keyClick(&widget_, Qt::Key_End);
  widget_.SetGrid(NumberedChartGrid(u""_s, 3, {u"a"_s}));
  EXPECT_EQ(widget_.accessibleDescription(), QString());
  QTest::keyClick(&widget_, Qt::Key_End);
  EXPECT_EQ(widget_.accessibleDescription(), u"3\na: 0"_s);
}

}  // namespace
}  // namespace kladez
