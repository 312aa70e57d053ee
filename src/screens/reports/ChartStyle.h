// How a chart looks: its colours and its font. All colours are plain, no gradients, so that a
// picture of few colours can hold each of them exactly.
#pragma once

#include <QColor>
#include <QFont>
#include <array>
#include <vector>

namespace kladez {

// One data column's colours. `ramp` goes from the shaded to the lit side of a solid.
struct SeriesStyle {
  QColor face;
  QColor area;   // under a flat line
  QColor hatch;  // strokes across a bar; the same as `face` for none
  std::array<QColor, 5> ramp;

  const QColor& Side() const { return ramp.front(); }
  const QColor& Top() const { return ramp.back(); }
};

struct ChartStyle {
  QColor ground;
  QColor wall;       // the back of a chart with depth
  QColor side_wall;  // its left side
  QColor floor;      // its plane of zero
  QColor grid;
  QColor zero_line;
  QColor text;
  QColor band;  // behind the row that is pointed at
  std::array<SeriesStyle, 2> series;
  QFont font;           // its family and weight; the size follows the chart's
  int marked_row = -1;  // the row with a band behind it; -1 is none
};

// The program's own style on white paper. The two columns differ in lightness as much as in hue, so
// that a black and white print tells them apart.
ChartStyle DefaultChartStyle();

// The same with the colours that the screen has now.
ChartStyle ScreenChartStyle();

// Every colour that the style may put on whole pixels.
std::vector<QColor> OwnColours(const ChartStyle& style);

}  // namespace kladez
