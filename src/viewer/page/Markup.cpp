#include "viewer/page/Markup.h"

#include <QStringList>
#include <array>

#include "viewer/page/PagePaths.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr std::array<double, 7> kFontPoints = {7.5, 9.75, 12, 13.5, 18, 24, 36};
constexpr int kNormalSize = 3;

// Browsers set typewriter letters smaller than the others of the same size.
constexpr double kMonospaceRatio = 13.0 / 16.0;

double SizePoints(const QString& text, double present) {
  const int number = LeadingNumber(text.startsWith(u'+') ? text.mid(1) : text, 0);
  const bool relative = text.startsWith(u'+') || text.startsWith(u'-');
  if (number == 0 && !relative) return present;
  const int size = std::clamp(relative ? kNormalSize + number : number, 1, 7);
  return kFontPoints[static_cast<size_t>(size - 1)];
}

std::optional<Qt::Alignment> HorizontalNamed(const QString& name) {
  if (name == u"center"_s || name == u"middle"_s) return Qt::AlignHCenter;
  if (name == u"right"_s) return Qt::AlignRight;
  if (name == u"left"_s) return Qt::AlignLeft;
  if (name == u"justify"_s) return Qt::AlignJustify;
  return std::nullopt;
}

void ApplyFont(const Tag& tag, TextStyle& style) {
  const QString face = tag.Attribute("face").section(u',', 0, 0).remove(u'\'').trimmed();
  if (!face.isEmpty()) {
    if (style.family == QStringView(kMonospace) && face != style.family)
      style.points /= kMonospaceRatio;
    style.family = face;
  }
  const QString size = tag.Attribute("size");
  if (!size.isEmpty()) {
    style.points = SizePoints(size, style.points);
    if (style.family == QStringView(kMonospace)) style.points *= kMonospaceRatio;
  }
  const QString color = tag.Attribute("color");
  if (!color.isEmpty()) style.color = color;
}

void ApplyHeading(double points, TextStyle& style) {
  style.points = points;
  style.bold = true;
}

}  // namespace

QString Tag::Attribute(const char* name) const {
  if (parsed_ != nullptr) {
    const GumboAttribute* found = gumbo_get_attribute(parsed_, name);
    return found == nullptr ? QString() : QString::fromUtf8(found->value).trimmed();
  }
  for (const AttributeText& each : written_)
    if (each.name.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0)
      return each.value.trimmed().toString();
  return {};
}

QString Tag::StyleProperty(const QString& property) const {
  const QString style = Attribute("style");
  if (style.isEmpty()) return {};
  for (const QString& part : style.toLower().split(u';'))
    if (part.section(u':', 0, 0).trimmed() == property) return part.section(u':', 1).trimmed();
  return {};
}

int LeadingNumber(const QString& text, int fallback) {
  qsizetype end = text.startsWith(u'-') ? 1 : 0;
  while (end < text.size() && end < 7 && text[end] >= u'0' && text[end] <= u'9') ++end;
  bool ok = false;
  const int number = text.left(end).toInt(&ok);
  return ok ? number : fallback;
}

Width ParseWidth(const QString& text) {
  const int number = LeadingNumber(text, 0);
  if (number <= 0) return {};
  return {text.contains(u'%') ? Width::Kind::kPercent : Width::Kind::kPixels,
          static_cast<double>(number)};
}

std::optional<Qt::Alignment> AlignmentOf(const Tag& tag) {
  const QString style = tag.StyleProperty(u"text-align"_s);
  return HorizontalNamed(style.isEmpty() ? tag.Attribute("align").toLower() : style);
}

std::optional<Qt::Alignment> VerticalOf(const Tag& tag) {
  const QString name = tag.Attribute("valign").toLower();
  if (name == u"top"_s || name == u"baseline"_s) return Qt::AlignTop;
  if (name == u"bottom"_s) return Qt::AlignBottom;
  return name == u"middle"_s ? std::optional<Qt::Alignment>(Qt::AlignVCenter) : std::nullopt;
}

TextStyle StyleInside(const Tag& tag, TextStyle style) {
  switch (tag.kind()) {
    case GUMBO_TAG_FONT:
      ApplyFont(tag, style);
      break;
    case GUMBO_TAG_B:
    case GUMBO_TAG_TH:
      style.bold = true;
      break;
    case GUMBO_TAG_I:
      style.italic = true;
      break;
    case GUMBO_TAG_U:
      style.underline = true;
      break;
    case GUMBO_TAG_H1:
      ApplyHeading(18, style);
      break;
    case GUMBO_TAG_H2:
      ApplyHeading(13.5, style);
      break;
    case GUMBO_TAG_A:
      if (const QString target = tag.Attribute("href"); NamesPage(target)) style.link = target;
      break;
    case GUMBO_TAG_PRE:
      style.points *= style.family == QStringView(kMonospace) ? 1 : kMonospaceRatio;
      style.family = QString::fromUtf16(kMonospace);
      break;
    default:
      break;
  }
  const QString size = tag.StyleProperty(u"font-size"_s);
  if (const int number = LeadingNumber(size, 0); number > 0)
    style.points = size.contains(u"px"_s) ? number * 0.75 : number;
  return style;
}

}  // namespace kladez::viewer
