#include "screens/reports/ChartStyle.h"

#include <QGuiApplication>
#include <algorithm>

#include "ui/controls/Look.h"

namespace kladez {
namespace {

QColor Mix(const QColor& from, const QColor& to, double share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return QColor(part(from.red(), to.red()), part(from.green(), to.green()),
                part(from.blue(), to.blue()));
}

// Shade is fuller and light is paler than the face; grey mixed in would make both look dusty.
SeriesStyle SeriesOf(const QColor& face, const QColor& hatch) {
  SeriesStyle style{face, Mix(face, Qt::white, 0.9), hatch, {}};
  const float hue = face.hsvHueF();
  const float fullness = face.hsvSaturationF();
  const float value = face.valueF();
  const QColor shaded = QColor::fromHsvF(hue, std::min(fullness * 1.15F, 1.0F), value * 0.76F);
  const QColor lit = QColor::fromHsvF(hue, fullness * 0.6F, value + (1 - value) * 0.42F);
  for (size_t i = 0; i < style.ramp.size(); ++i) {
    style.ramp[i] = Mix(shaded, lit, static_cast<double>(i) / (style.ramp.size() - 1.0));
  }
  return style;
}

}  // namespace

ChartStyle DefaultChartStyle() {
  ChartStyle style;
  style.ground = Qt::white;
  style.wall = look::kStripe;
  style.side_wall = Mix(look::kStripe, look::kLine, 0.4);
  style.floor = Mix(look::kStripe, look::kLine, 0.8);
  style.grid = look::kLine;
  style.zero_line = Mix(look::kLine, look::kQuiet, 0.7);
  style.text = Mix(look::kQuiet, Qt::black, 0.35);
  style.band = look::kAccentLight;
  style.series = {SeriesOf(look::kAccent, look::kAccent),
                  SeriesOf(look::kWarm, Mix(look::kWarm, Qt::white, 0.4))};
  style.font = QGuiApplication::font();
  return style;
}

std::vector<QColor> OwnColours(const ChartStyle& style) {
  std::vector<QColor> colours = {style.ground, style.wall,      style.side_wall, style.floor,
                                 style.grid,   style.zero_line, style.text,      style.band};
  for (const SeriesStyle& series : style.series) {
    colours.insert(colours.end(), {series.face, series.area, series.hatch});
    colours.insert(colours.end(), series.ramp.begin(), series.ramp.end());
  }
  return colours;
}

}  // namespace kladez
