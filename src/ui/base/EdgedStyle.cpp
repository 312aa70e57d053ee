#include "ui/base/EdgedStyle.h"

#include <QApplication>
#include <QStyleFactory>
#include <QStyleOption>

#include "ui/base/Colours.h"

namespace kladez::look {
namespace {

using namespace Qt::StringLiterals;

// By how much, in percent, "Fusion" darkens the window's colour to an edge, and the colour of a
// selected row to the edge of what has the keyboard.
constexpr int kOfWindow = 140;
constexpr int kOfHighlight = 125;

// The option with colours that give the wanted edges, as long as something is drawn.
class Edged {
 public:
  explicit Edged(const QStyleOption* option)
      : option_(const_cast<QStyleOption*>(option)), before_(option->palette) {
    option_->palette.setColor(QPalette::Window, QColor(kEdge).lighter(kOfWindow));
    option_->palette.setColor(QPalette::Highlight, QColor(kAccent).lighter(kOfHighlight));
  }
  ~Edged() { option_->palette = before_; }
  Edged(const Edged&) = delete;
  Edged& operator=(const Edged&) = delete;

 private:
  QStyleOption* option_;  // the toolkit makes it for this one drawing
  QPalette before_;
};

}  // namespace

// The application's style may be one of these already.
EdgedStyle::EdgedStyle() {
  const auto* edged = dynamic_cast<const EdgedStyle*>(QApplication::style());
  const QStyle* own = edged != nullptr ? edged->baseStyle() : QApplication::style();
  setBaseStyle(QStyleFactory::create(own->name()));
}

void EdgedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_Frame:
    case PE_FrameLineEdit:
    case PE_FrameGroupBox:
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
    case PE_PanelButtonCommand:
      if (baseStyle()->name() == "fusion"_L1 && option->state.testFlag(State_Enabled)) {
        const Edged edged(option);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void EdgedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  if ((control == CC_ComboBox || control == CC_SpinBox) && baseStyle()->name() == "fusion"_L1 &&
      option->state.testFlag(State_Enabled)) {
    const Edged edged(option);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

}  // namespace kladez::look
