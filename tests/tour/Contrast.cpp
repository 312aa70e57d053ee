#include "Contrast.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <algorithm>

#include "ui/Link.h"
#include "ui/base/Colours.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr double kText = 4.5;
constexpr double kIcon = 3;

// The ground is what most of the place is filled with.
QColor GroundOf(const QImage& picture) {
  QHash<QRgb, int> counts;
  const int step = picture.width() > 200 ? 3 : 1;
  for (int y = 0; y < picture.height(); y += step) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); x += step) ++counts[line[x]];
  }
  QRgb most = 0;
  for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
    if (it.value() > counts.value(most)) most = it.key();
  }
  return QColor::fromRgb(most);
}

// The part of a picture that stands out most from the ground.
double Strongest(const QImage& picture, const QColor& ground) {
  double strongest = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor colour = picture.pixelColor(x, y);
      if (colour.alpha() > 200) strongest = std::max(strongest, look::Contrast(colour, ground));
    }
  }
  return strongest;
}

class Reader {
 public:
  Reader(QWidget* window, QString set) : window_(window), set_(std::move(set)) {
    picture_ = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
  }

  QStringList Read() {
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
      if (widget->window() == window_ && widget->isVisible() && widget->isEnabled() &&
          !widget->visibleRegion().isEmpty()) {
        Look(widget);
      }
    }
    return faults_;
  }

 private:
  void Look(QWidget* widget) {
    using P = QPalette;
    if (auto* label = qobject_cast<QLabel*>(widget)) {
      if (!label->text().isEmpty()) Compare(widget, label->foregroundRole(), Ground(widget));
    } else if (auto* list = qobject_cast<QTreeView*>(widget)) {
      ReadList(list);
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
      // What is selected may fill most of the field.
      Compare(line, P::Text,
              line->hasSelectedText() ? line->palette().color(P::Base) : Ground(line));
      Compare(line, P::HighlightedText, line->palette().color(P::Highlight));
      if (line->hasFrame()) CompareEdge(line);
    } else if (qobject_cast<QCheckBox*>(widget) || qobject_cast<QRadioButton*>(widget) ||
               qobject_cast<QGroupBox*>(widget)) {
      Compare(widget, P::WindowText, Ground(widget));
    } else if (qobject_cast<QComboBox*>(widget)) {
      Compare(widget, P::ButtonText, FaceOf(widget));
      CompareEdge(widget);
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
      ReadButton(button);
    }
  }

  void ReadButton(QAbstractButton* button) {
    const bool link = qobject_cast<Link*>(button) != nullptr;
    QColor ground = qobject_cast<QPushButton*>(button) != nullptr ? FaceOf(button) : Ground(button);
    // A link may stand on a ground that fades.
    if (link) ground = Place(button).copy(3, 2, 1, 1).pixelColor(0, 0);
    if (!button->icon().isNull()) {
      const QImage icon = button->icon().pixmap(32).toImage();
      Expect(button, u"значок"_s, Strongest(icon, ground), kIcon);
    }
    if (button->text().isEmpty()) return;
    if (link) {
      Expect(button, u"ссылка"_s, Strongest(Place(button), ground), kText);
    } else {
      Compare(button, QPalette::ButtonText, ground);
      if (qobject_cast<QPushButton*>(button)) CompareEdge(button);
    }
  }

  void ReadList(QTreeView* list) {
    using P = QPalette;
    const QPalette& colours = list->palette();
    for (const P::ColorGroup group : {P::Active, P::Inactive}) {
      Expect(list, u"выбранная строка"_s,
             look::Contrast(colours.color(group, P::HighlightedText),
                            colours.color(group, P::Highlight)),
             kText);
    }
    for (const P::ColorRole ground : {P::Base, P::AlternateBase}) {
      Compare(list, P::Text, colours.color(ground));
      for (const look::Shade* shade : {&look::kGroupRow, &look::kWarning, &look::kQuiet}) {
        Expect(list, u"строка"_s, look::Contrast(*shade, colours.color(ground)), kText);
      }
    }
  }

  // What of the widget is in sight.
  QImage Place(const QWidget* widget) const {
    const qreal scale = picture_.devicePixelRatio();
    const QRect seen = widget->visibleRegion().boundingRect();
    const QRect place(widget->mapTo(window_, seen.topLeft()), seen.size());
    return picture_.copy(QRect(place.topLeft() * scale, place.size() * scale));
  }
  QColor Ground(const QWidget* widget) const { return GroundOf(Place(widget)); }

  void Compare(const QWidget* widget, QPalette::ColorRole text, const QColor& ground) {
    Expect(widget, u"текст"_s, look::Contrast(widget->palette().color(text), ground), kText);
  }

  // The face of a button goes from light to dark: its ground is that of the line at half height.
  QColor FaceOf(const QWidget* widget) const {
    const QImage place = Place(widget);
    return GroundOf(place.copy(0, place.height() / 2, place.width(), 1));
  }

  // A stroke across the left edge, at half height, meets the frame.
  void CompareEdge(const QWidget* widget) {
    const int middle = widget->height() / 2;
    if (widget->visibleRegion().boundingRect() != widget->rect()) return;
    const QImage stroke = Place(widget).copy(0, middle, std::min(widget->width(), 6), 1);
    Expect(widget, u"рамка"_s, Strongest(stroke, FaceOf(widget)), kIcon);
  }

  void Expect(const QWidget* widget, const QString& what, double contrast, double wanted) {
    if (contrast >= wanted) return;
    QString name = widget->objectName();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) name = label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) name = button->text();
    faults_.append(
        u"%1 слабый контраст %2: %3 «%4»"_s.arg(set_).arg(contrast, 0, 'f', 2).arg(what, name));
  }

  QWidget* window_;
  QString set_;
  QImage picture_;
  QStringList faults_;
};

}  // namespace

QStringList FaintOf(QWidget* window, const QString& dark_picture) {
  look::UseScheme(look::Scheme::kLight);
  QStringList faults = Reader(window, u"светлое:"_s).Read();
  look::UseScheme(look::Scheme::kDark);
  faults += Reader(window, u"тёмное:"_s).Read();
  window->grab().save(dark_picture);
  look::UseScheme(look::Scheme::kSystem);
  return faults;
}

}  // namespace kladez
