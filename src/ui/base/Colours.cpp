#include "ui/base/Colours.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <map>

#include "ui/base/EdgedStyle.h"

namespace kladez::look {
namespace {

constexpr double kReadable = 4.5;

struct Ground {
  QColor window;
  QColor base;
  QColor button;
  QColor text;
  QColor disabled;
  QColor highlight;
  QColor tip;
};

constexpr Ground kLightGround{{0xEF, 0xEF, 0xEF}, {0xFF, 0xFF, 0xFF}, {0xEF, 0xEF, 0xEF}, {0, 0, 0},
                              {0x8C, 0x8C, 0x8C}, {0x1F, 0x5F, 0x78}, {0xFF, 0xFF, 0xE6}};
constexpr Ground kDarkGround{{0x22, 0x28, 0x2B}, {0x1A, 0x1F, 0x21}, {0x2E, 0x36, 0x39},
                             {0xEA, 0xEE, 0xF0}, {0x78, 0x84, 0x89}, {0x2E, 0x6F, 0x8A},
                             {0x2E, 0x36, 0x39}};

QPalette PaletteOf(const Ground& ground, bool dark) {
  QPalette palette(ground.button, ground.window);  // edges and shadows follow from these two
  const auto pick = [dark](const Shade& shade) { return dark ? shade.dark : shade.light; };
  using P = QPalette;
  for (const auto part : {P::WindowText, P::Text, P::ButtonText, P::ToolTipText}) {
    palette.setColor(part, ground.text);
    palette.setColor(P::Disabled, part, ground.disabled);
  }
  palette.setColor(P::Base, ground.base);
  palette.setColor(P::Disabled, P::Base, ground.window);
  palette.setColor(P::AlternateBase, pick(kStripe));
  palette.setColor(P::Highlight, ground.highlight);
  palette.setColor(P::HighlightedText, Qt::white);
  palette.setColor(P::ToolTipBase, ground.tip);
  palette.setColor(P::PlaceholderText, pick(kQuiet));
  palette.setColor(P::Link, pick(kAccent));
  palette.setColor(P::LinkVisited, pick(kAccent));
  return palette;
}

// Of linear light, 0 to 1, as the eye weighs the three colours.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

// The parts of one widget that have a shade of their own. All others are left unset, so that they
// go on following the widgets around it and the program.
class Painted : public QObject {
 public:
  explicit Painted(QWidget* widget) : QObject(widget), widget_(widget) {
    widget->installEventFilter(this);
  }

  void Set(QPalette::ColorRole part, const Shade& shade) {
    shades_.insert_or_assign(part, shade);
    Apply();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const bool changed = event->type() == QEvent::PaletteChange ||
                         event->type() == QEvent::ApplicationPaletteChange ||
                         event->type() == QEvent::Polish;
    if (changed && !applies_) Apply();
    return false;
  }

 private:
  void Apply() {
    applies_ = true;
    QPalette palette;
    for (const auto& [part, shade] : shades_) palette.setColor(part, shade);
    widget_->setPalette(palette);
    applies_ = false;
  }

  QWidget* widget_;
  std::map<QPalette::ColorRole, Shade> shades_;
  bool applies_ = false;
};

QHash<QObject*, Painted*>& PaintedWidgets() {
  static QHash<QObject*, Painted*> painted;
  return painted;
}

QColor Between(const QColor& from, const QColor& to, double share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return QColor(part(from.red(), to.red()), part(from.green(), to.green()),
                part(from.blue(), to.blue()));
}

// What the desktop chose stays, as far as it can be read: the ground of a selected row goes darker
// or lighter until its letters stand out.
QColor ReadableGround(QColor ground, const QColor& text) {
  const bool darker = text.lightness() > 127;
  for (int step = 0; step < 40 && Contrast(text, ground) < kReadable; ++step) {
    ground = Between(ground, darker ? Qt::black : Qt::white, 0.06);
  }
  return ground;
}

// The toolkit tells the windows in a later turn of the event loop; until then a part of them would
// have the new colours and the rest the old ones.
void Recolour(const QPalette& palette) {
  QApplication::setPalette(palette);
  QEvent changed(QEvent::ApplicationPaletteChange);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    QCoreApplication::sendEvent(window, &changed);
  }
}

}  // namespace

bool IsDark() { return QGuiApplication::palette().color(QPalette::Window).lightness() < 128; }

Shade::operator QColor() const { return IsDark() ? dark : light; }

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

void Paint(QWidget* widget, QPalette::ColorRole part, const Shade& shade) {
  Painted*& painted = PaintedWidgets()[widget];
  if (painted == nullptr) {
    painted = new Painted(widget);
    QObject::connect(widget, &QObject::destroyed,
                     [](QObject* gone) { PaintedWidgets().remove(gone); });
  }
  painted->Set(part, shade);
}

QPalette PaperPalette() { return PaletteOf(kLightGround, false); }

void UseScheme(Scheme scheme) {
  if (dynamic_cast<const EdgedStyle*>(QApplication::style()) == nullptr) {
    QApplication::setStyle(new EdgedStyle);
  }
  if (scheme == Scheme::kDark) return Recolour(PaletteOf(kDarkGround, true));
  if (scheme == Scheme::kLight) return Recolour(PaperPalette());
  QApplication::setPalette(QPalette());
  const QPalette desktop = QApplication::palette();
  QPalette own;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    own.setColor(group, QPalette::Highlight,
                 ReadableGround(desktop.color(group, QPalette::Highlight),
                                desktop.color(group, QPalette::HighlightedText)));
  }
  own.setColor(QPalette::PlaceholderText, kQuiet);
  own.setColor(QPalette::Link, kAccent);
  own.setColor(QPalette::LinkVisited, kAccent);
  Recolour(own);
}

}  // namespace kladez::look
