// The toolkit's own style with edges that can be seen: those of its fields, ticks and buttons stand
// out by less than 2 : 1 from what is around them.
#pragma once

#include <QProxyStyle>

namespace kladez::look {

// Changes the edges of "Fusion" alone: other styles are the user's choice and know better.
class EdgedStyle : public QProxyStyle {
 public:
  EdgedStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

}  // namespace kladez::look
