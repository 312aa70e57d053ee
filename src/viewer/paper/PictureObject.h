// How a picture in the text is drawn: with as many of its points as there is room for. The
// toolkit's own way leaves out whole rows of them where a picture is drawn smaller.
#pragma once

#include <QObject>
#include <QTextObjectInterface>

namespace kladez::viewer {

class PictureObject : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  using QObject::QObject;

  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                  const QTextFormat& format) override;
};

}  // namespace kladez::viewer
