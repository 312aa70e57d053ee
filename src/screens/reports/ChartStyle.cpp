#include "screens/reports/ChartStyle.h"

#include <QGuiApplication>
#include <algorithm>

#include "ui/controls/Look.h"

namespace kladez {
namespace {

constexpr look::Shade kInk{{0x6B, 0x76, 0x7B}, {0xC0, 0xCC, 0xD1}};
// The second series: light enough to differ from the first in a black and white print.
constexpr look::Shade kWarm{{0xE0, 0x9F, 0x4A}, {0xE0, 0x9F, 0x4A}};

QColor Mix(const QColor& from, const QColor& to, double share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return QColor(part(from.red(), to.red()), part(from.green(), to.green()),
                part(from.blue(), to.blue()));
}

// Shade is fuller and light is paler than the face; grey mixed in would make both look dusty.
SeriesStyle SeriesOf(const QColor& face, const QColor& hatch, const QColor& ground) {
  SeriesStyle style{face, Mix(face, ground, 0.9), hatch, {}};
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

ChartStyle StyleOn(const QColor& ground, bool dark) {
  const auto pick = [dark](const look::Shade& shade) { return dark ? shade.dark : shade.light; };
  const QColor stripe = pick(look::kStripe);
  const QColor line = pick(look::kLine);
  const QColor accent = pick(look::kAccent);
  const QColor warm = pick(kWarm);
  const QColor ink = pick(kInk);
  ChartStyle style;
  style.ground = ground;
  style.wall = stripe;
  style.side_wall = Mix(stripe, line, 0.4);
  style.floor = Mix(stripe, line, 0.8);
  style.grid = line;
  style.zero_line = Mix(line, ink, 0.7);
  style.text = Mix(ink, dark ? Qt::white : Qt::black, 0.35);
  style.band = pick(look::kAccentLight);
  style.series = {SeriesOf(accent, accent, style.ground),
                  SeriesOf(warm, Mix(warm, style.ground, 0.4), style.ground)};
  style.font = QGuiApplication::font();
  return style;
}

}  // namespace

ChartStyle DefaultChartStyle() { return StyleOn(Qt::white, false); }

ChartStyle ScreenChartStyle() {
  return StyleOn(QGuiApplication::palette().color(QPalette::Base), look::IsDark());
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
