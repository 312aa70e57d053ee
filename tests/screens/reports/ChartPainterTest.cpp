#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <limits>
#include <set>

#include "books/reports/ChartTestGrids.h"
#include "books/reports/GifReader.h"
#include "books/reports/GifWriter.h"
#include "screens/reports/ChartImage.h"
#include "screens/reports/ChartLayout.h"
#include "screens/reports/ChartPainter.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QImage Paint(const ChartGrid& grid, ChartKind kind, QSize size, double pixel_ratio = 1) {
  QImage image(size * pixel_ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(pixel_ratio);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  PaintChart(painter, QRectF(QPointF(), size), grid, kind, DefaultChartStyle());
  return image;
}

// The rectangle around all pixels of exactly this colour.
QRect BoundsOf(const QImage& image, const QColor& colour) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) == colour.rgb()) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

ChartGrid OneBar(double value) {
  ChartGrid grid = NumberedChartGrid(u""_s, 5, {u"Прибыль"_s});
  grid.Cell(2, 0) = value;
  return grid;
}

TEST(ChartPainter, LinesEndAtTodayAndThePrintKnowsNothingOfIt) {
  ChartGrid grid = SalesGrid(10, 1);
  for (int row = 5; row < 10; ++row) grid.Cell(row, 0) = 0;
  const QSize size(600, 400);
  const QColor face = DefaultChartStyle().series[0].face;
  const int whole = BoundsOf(Paint(grid, ChartKind::k2DLines, size), face).right();
  const auto printed = RenderChartIndexed(grid, ChartKind::k2DLines, size).pixels;
  grid.past_rows = 5;
  EXPECT_LT(BoundsOf(Paint(grid, ChartKind::k2DLines, size), face).right(),
            whole - size.width() / 3);
  grid.unit = u"руб."_s;
  grid.year_ago = grid.columns[0].values;
  for (const ChartKind kind : kAllChartKinds) {
    ChartGrid without = grid;
    without.year_ago.clear();
    EXPECT_NE(Paint(grid, kind, size), Paint(without, kind, size));
  }
  EXPECT_EQ(RenderChartIndexed(grid, ChartKind::k2DLines, size).pixels, printed);
  EXPECT_EQ(ChartAsPicture(grid, ChartKind::k3DBars).size(), QSize(2400, 1280));
  EXPECT_TRUE(ChartAsSvg(grid, ChartKind::k3DBars).contains("Год назад"));
}

TEST(ChartPainter, LossHangsBelowTheZeroLineAndGainStandsOnIt) {
  const QSize size(600, 400);
  const ChartStyle style = DefaultChartStyle();
  for (const ChartKind kind : {ChartKind::k2DBars, ChartKind::k3DBars}) {
    SCOPED_TRACE(static_cast<int>(kind));
    const auto layout = [&](const ChartGrid& grid) {
      return LayOutChart(QRectF(QPointF(), size), grid, kind, style);
    };
    ChartGrid grid = OneBar(-70);
    const double shift = layout(grid).depth.y() * 0.2;  // a solid bar stands a little inside
    const QRect loss = BoundsOf(Paint(grid, kind, size), style.series[0].face);
    EXPECT_GE(loss.top(), layout(grid).Y(0) - 1);
    EXPECT_LE(loss.top(), layout(grid).Y(0) + 2);
    EXPECT_NEAR(loss.bottom(), layout(grid).Y(-70) + shift / 2, 2 - shift / 2);
    EXPECT_TRUE(loss.contains(loss.center().x(), static_cast<int>(layout(grid).Y(-35))));

    grid = OneBar(70);
    const QRect gain = BoundsOf(Paint(grid, kind, size), style.series[0].face);
    EXPECT_LE(gain.bottom(), layout(grid).Y(0) + 1);
    EXPECT_NEAR(gain.top(), layout(grid).Y(70) + shift / 2, 2 - shift / 2);
  }
}

TEST(ChartPainter, SmallestValueIsStillSeen) {
  ChartGrid grid = OneBar(0.01);
  grid.Cell(0, 0) = 1e9;
  const ChartLayout layout =
      LayOutChart(QRectF(0, 0, 300, 180), grid, ChartKind::k2DBars, DefaultChartStyle());
  const QImage image = Paint(grid, ChartKind::k2DBars, {300, 180});
  const int x = static_cast<int>(layout.Middle(2));
  bool seen = false;
  for (int y = 0; y < image.height(); ++y) {
    seen |= image.pixel(x, y) == DefaultChartStyle().series[0].face.rgb();
  }
  EXPECT_TRUE(seen);
}

// On whatever pixel grid, a flat bar ends at whole pixels: around it there is nothing blended.
TEST(ChartPainter, BarsHaveSharpEdgesAtEveryPixelRatio) {
  const ChartStyle style = DefaultChartStyle();
  std::set<QRgb> own;
  for (const QColor& colour : OwnColours(style)) own.insert(colour.rgb());
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    SCOPED_TRACE(ratio);
    const QImage image = Paint(OneBar(70), ChartKind::k2DBars, {300, 180}, ratio);
    const QRect bar = BoundsOf(image, style.series[0].face);
    ASSERT_GT(bar.width(), 10);
    const QRect around = bar.adjusted(-1, -1, 1, 1);
    for (int y = around.top(); y <= around.bottom(); ++y) {
      for (int x = around.left(); x <= around.right(); ++x) {
        ASSERT_TRUE(own.contains(image.pixel(x, y))) << x << ' ' << y;
        ASSERT_TRUE(!bar.contains(x, y) || image.pixel(x, y) == style.series[0].face.rgb());
      }
    }
  }
}

TEST(ChartPainter, ColumnsDifferInABlackAndWhitePrint) {
  const ChartStyle style = DefaultChartStyle();
  EXPECT_GE(qGray(style.series[1].face.rgb()) - qGray(style.series[0].face.rgb()), 80);
  EXPECT_GE(qGray(style.ground.rgb()) - qGray(style.series[1].face.rgb()), 60);
}

// The column farther back is moved aside, but not so far that it is read off the next label.
TEST(ChartPainter, FarRibbonPeaksOverItsOwnRow) {
  const ChartStyle style = DefaultChartStyle();
  for (const QSize size : {QSize(300, 180), QSize(600, 400), QSize(1200, 800)}) {
    for (const int rows : {12, 31}) {
      SCOPED_TRACE(testing::Message() << size.width() << ' ' << rows);
      ChartGrid grid = NumberedChartGrid(u""_s, rows, {u"Реализация"_s, u"Прибыль"_s});
      grid.Cell(7, 0) = 100;
      const ChartLayout layout =
          LayOutChart(QRectF(QPointF(), size), grid, ChartKind::k3DLines, style);
      const QImage image = Paint(grid, ChartKind::k3DLines, size);
      // Of the legend nothing is looked at.
      const QRect below(0, static_cast<int>(layout.legend.bottom()) + 1, size.width(),
                        size.height());
      const QRect ribbon = BoundsOf(image.copy(below), style.series[0].Side());
      const QRect peak = BoundsOf(image.copy(0, below.top() + ribbon.top(), size.width(), 1),
                                  style.series[0].Side());
      EXPECT_NEAR(peak.center().x(), layout.Middle(7), layout.slot / 2);
    }
  }
}

TEST(ChartPainter, OneRowIsSeenInEveryKind) {
  ChartGrid grid = NumberedChartGrid(u""_s, 1, {u"Количество"_s});
  grid.Cell(0, 0) = 35;
  const SeriesStyle series = DefaultChartStyle().series[0];
  for (const ChartKind kind : kAllChartKinds) {
    const QColor colour = kind == ChartKind::k3DLines ? series.Top() : series.face;
    EXPECT_FALSE(BoundsOf(Paint(grid, kind, {300, 180}), colour).isEmpty())
        << static_cast<int>(kind);
  }
}

TEST(ChartPainter, OddGridsAreDrawnWithoutMarksOfTheirOwn) {
  ChartGrid unreal = OneBar(std::numeric_limits<double>::quiet_NaN());
  unreal.Cell(1, 0) = std::numeric_limits<double>::infinity();
  const ChartStyle style = DefaultChartStyle();
  for (const ChartKind kind : kAllChartKinds) {
    SCOPED_TRACE(static_cast<int>(kind));
    EXPECT_TRUE(BoundsOf(Paint(ChartGrid{}, kind, {300, 180}), Qt::magenta).isEmpty());
    EXPECT_TRUE(BoundsOf(Paint(unreal, kind, {300, 180}), Qt::magenta).isEmpty());
    const QImage zeros =
        Paint(NumberedChartGrid(u""_s, 12, {u"a"_s}), ChartKind::k3DBars, {300, 180});
    EXPECT_TRUE(BoundsOf(zeros, style.series[0].face).isEmpty());
    Paint(SalesGrid(31, 2), kind, {20, 10});
  }
}

TEST(ChartLayout, LabelsNeverCollideOrLeaveTheChart) {
  ChartGrid wide = SalesGrid(31, 2);
  wide.Cell(3, 0) = 123456789012.0;
  const ChartGrid grids[] = {SalesGrid(12, 1), SalesGrid(31, 2), wide};
  for (const QSize size : {QSize(300, 180), QSize(600, 400), QSize(1200, 800)}) {
    for (const ChartKind kind : kAllChartKinds) {
      for (const ChartGrid& grid : grids) {
        SCOPED_TRACE(testing::Message()
                     << size.width() << ' ' << static_cast<int>(kind) << ' ' << grid.RowCount());
        const ChartLayout layout =
            LayOutChart(QRectF(QPointF(), size), grid, kind, DefaultChartStyle());
        const QFontMetricsF metrics(layout.font);
        double last_right = 0;
        for (const int row : layout.shown_labels) {
          const double half = metrics.horizontalAdvance(grid.row_labels[row]) / 2;
          EXPECT_GT(layout.Middle(row) - half, last_right);
          last_right = layout.Middle(row) + half;
        }
        EXPECT_LE(last_right, size.width());
        EXPECT_GE(layout.shown_labels.size(), 5U);
        for (int mark = layout.axis.first; mark <= layout.axis.last; ++mark) {
          EXPECT_GE(layout.front.left(), metrics.horizontalAdvance(layout.axis.Text(mark)));
        }
        const double step = layout.Y(0) - layout.Y(layout.axis.step);
        EXPECT_GE(step, layout.line_height);
      }
    }
  }
}

TEST(ChartLayout, PointedRowIsTheOneOfTheBar) {
  const ChartGrid grid = SalesGrid(12, 1);
  for (const ChartKind kind : kAllChartKinds) {
    const ChartLayout layout = LayOutChart(QRectF(0, 0, 600, 400), grid, kind, DefaultChartStyle());
    const QPointF inside = layout.depth * 0.3;
    for (const int row : {0, 5, 11}) {
      EXPECT_EQ(layout.RowAt(QPointF(layout.Middle(row), layout.front.center().y()) + inside, 12),
                row);
    }
    EXPECT_EQ(layout.RowAt({1, 1}, 12), -1);
  }
}

TEST(RenderChartIndexed, OwnColoursAreExactAndTheRestIsNear) {
  const QSize size(1200, 800);
  std::set<QRgb> own;
  for (const QColor& colour : OwnColours(DefaultChartStyle())) own.insert(colour.rgb());
  for (const ChartKind kind : kAllChartKinds) {
    SCOPED_TRACE(static_cast<int>(kind));
    const QImage painted = Paint(SalesGrid(12, 2), kind, size);
    const IndexedImage image = RenderChartIndexed(SalesGrid(12, 2), kind, size);
    ASSERT_EQ(image.pixels.size(), 1200U * 800U);
    int farthest = 0;
    for (size_t i = 0; i < image.pixels.size(); ++i) {
      const QRgb was = painted.pixel(static_cast<int>(i % 1200), static_cast<int>(i / 1200));
      const Rgb is = image.colours[image.pixels[i]];
      const int distance = std::abs(is.red - qRed(was)) + std::abs(is.green - qGreen(was)) +
                           std::abs(is.blue - qBlue(was));
      ASSERT_TRUE(distance == 0 || !own.contains(was)) << i;
      farthest = std::max(farthest, distance);
    }
    EXPECT_LE(farthest, 30);
  }
}

TEST(RenderChartIndexed, FileShowsTheChartPixelForPixel) {
  const IndexedImage image = RenderChartIndexed(SalesGrid(31, 2), ChartKind::k3DBars, {1200, 800});
  const IndexedImage read = ReadGif(WriteGif(image));
  EXPECT_EQ(read.colours, image.colours);
  EXPECT_TRUE(read.pixels == image.pixels);
}

}  // namespace
}  // namespace kladez
