#include "ui/controls/Look.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QFrame>
#include <QGuiApplication>
#include <QIconEngine>
#include <QLayout>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <map>

namespace kladez::look {
namespace {

using namespace Qt::StringLiterals;

// The height in pixels of letters of nine points at 96 dpi, which the steps are told for.
constexpr int kUsualLetters = 15;

// Outlines on a field of 24 by 24, drawn with a pen of 1.6.
const char* OutlineOf(IconName name) {
  static const std::map<IconName, const char*> outlines = {
      {IconName::kAdd, "M12 5v14M5 12h14"},
      {IconName::kChange, "M4 20l1-5L16 4l4 4L9 19zM14 6l4 4"},
      {IconName::kRemove, "M6 6l12 12M18 6L6 18"},
      {IconName::kUp, "M12 19V5M6 11l6-6 6 6"},
      {IconName::kDown, "M12 5v14M6 13l6 6 6-6"},
      {IconName::kSort, "M4 6h10M4 12h7M4 18h4M17 5v14M14 16l3 3 3-3"},
      {IconName::kPrint, "M7 9V4h10v5M7 17H4V9h16v8h-3M7 14h10v6H7z"},
      {IconName::kCopy, "M9 9h11v11H9zM5 15H4V4h11v1"},
      {IconName::kPaste, "M8 5H5v15h14V5h-3M9 3h6v4H9zM9 12h6M9 16h6"},
      {IconName::kRefresh, "M19 8a8 8 0 1 0 1 6M20 4v5h-5"},
      {IconName::kSave, "M5 4h12l3 3v13H4V4zM8 4v5h7V4M8 20v-6h8v6"},
      {IconName::kPick, "M5 13l4 4L19 7"},
      {IconName::kHint, "M9 9a3 3 0 1 1 4 3q-1 .5-1 2M12 17v.6M12 3a9 9 0 1 0 .01 0z"},
      {IconName::kReceipt, "M4 12v8h16v-8M12 4v11M8 11l4 4 4-4"},
      {IconName::kShipment, "M4 12v8h16v-8M12 15V4M8 8l4-4 4 4"},
      {IconName::kTransfer, "M4 8h15M15 4l4 4-4 4M20 16H5M9 12l-4 4 4 4"},
      {IconName::kStock, "M4 8l8-4 8 4v9l-8 4-8-4zM4 8l8 4 8-4M12 12v9"},
      {IconName::kPrices, "M12 3h8v8l-9 9-8-8zM16.5 7.5h.1"},
      {IconName::kReport, "M6 3h9l4 4v14H6zM9 11h7M9 14h7M9 17h4"},
      {IconName::kChart, "M4 4v16h16M8 17v-5M12 17V8M16 17v-7"},
      {IconName::kGoods, "M4 7h16v13H4zM4 7l2-3h12l2 3M10 11h4"},
      {IconName::kParty, "M12 4a4 4 0 1 1-.01 0zM4 20q1-6 8-6t8 6"},
      {IconName::kWarehouse, "M3 20V9l9-5 9 5v11M7 20v-8h10v8M7 16h10"},
      {IconName::kCurrency, "M9 20V5h5a4 4 0 0 1 0 8H7M7 16h7"},
      {IconName::kCalendar, "M4 6h16v14H4zM4 10h16M8 3v5M16 3v5M8 14h2M14 14h2"},
      {IconName::kHome, "M4 11l8-7 8 7M6 9v11h12V9M10 20v-6h4v6"},
      {IconName::kOpen, "M3 19V6h7l2 2h7v3M3 19l4-8h15l-4 8z"},
      {IconName::kProgram, "M12 3l8 4.5v9L12 21l-8-4.5v-9zM8.5 8v8M8.5 12.5L14 8M10.5 11l4 5"},
  };
  return outlines.at(name);
}

// Drawn when it is needed: in the size that is wanted and the colour of that moment.
class Outline : public QIconEngine {
 public:
  Outline(IconName name, const Shade& shade) : name_(name), shade_(shade) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QColor colour = shade_;
    if (mode == QIcon::Disabled) {
      colour = QGuiApplication::palette().color(QPalette::Disabled, QPalette::ButtonText);
    }
    const QByteArray svg =
        QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><path )"
                   R"(fill="none" stroke-width="1.6" stroke-linecap="round" )"
                   R"(stroke-linejoin="round" stroke=")") +
        colour.name().toLatin1() + R"(" d=")" + OutlineOf(name_) + R"("/></svg>)";
    QSvgRenderer(svg).render(painter, rect);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    QList<QSize> sizes;
    for (const int side : {16, 20, 24, 32, 48, 64, 128}) sizes.append(QSize(side, side));
    return sizes;
  }
  QIconEngine* clone() const override { return new Outline(*this); }

 private:
  IconName name_;
  Shade shade_;
};

bool HasEqualFigures(const QFont& font) {
  const QFontMetricsF metrics(font);
  const qreal wanted = metrics.horizontalAdvance(u'0');
  for (char16_t figure = u'1'; figure <= u'9'; ++figure) {
    if (std::abs(metrics.horizontalAdvance(QChar(figure)) - wanted) > 0.01) return false;
  }
  return true;
}

}  // namespace

QIcon Icon(IconName name, const Shade& shade) { return QIcon(new Outline(name, shade)); }

QSize IconSize(const QWidget* widget) {
  const int side = std::max(kMargin, widget->fontMetrics().height() * 9 / 20 * 2);
  return {side, side};
}

int ByLetters(const QWidget* widget, int steps) {
  return steps * kGrid * std::max(kUsualLetters, widget->fontMetrics().height()) / kUsualLetters;
}

QSize ByLetters(const QWidget* widget, int across, int down) {
  return {ByLetters(widget, across), ByLetters(widget, down)};
}

QFont NumberFont(const QFont& base) {
  static std::map<QString, QFont> fonts;
  const auto known = fonts.find(base.key());
  if (known != fonts.end()) return known->second;
  QFont font(base);
  QStringList families = {u"DejaVu Sans"_s, u"Liberation Sans"_s, u"Noto Sans"_s,
                          QFontDatabase::systemFont(QFontDatabase::FixedFont).family()};
  while (!HasEqualFigures(font) && !families.isEmpty()) font.setFamily(families.takeFirst());
  return fonts.emplace(base.key(), font).first->second;
}

QFont HeadingFont(const QFont& base) {
  QFont font(base);
  font.setPointSizeF(base.pointSizeF() * 1.35);
  font.setWeight(QFont::DemiBold);
  return font;
}

void SetDialogMargins(QLayout* layout) {
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kGrid);
}

void SetPanelMargins(QLayout* layout) {
  layout->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  layout->setSpacing(kGrid);
}

void MakeQuiet(QWidget* widget) { Paint(widget, QPalette::WindowText, kQuiet); }

void MakeWarning(QWidget* widget) {
  widget->setBackgroundRole(QPalette::Base);
  Paint(widget, QPalette::WindowText, kWarning);
  widget->setForegroundRole(QPalette::WindowText);
}

QString PlainToolTip(const QString& text) {
  return text.isEmpty() ? text
                        : QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>");
}

QWidget* NewSeparator(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Plain);
  Paint(line, QPalette::WindowText, kLine);
  return line;
}

}  // namespace kladez::look
