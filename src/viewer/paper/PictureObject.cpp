#include "viewer/paper/PictureObject.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

#include "viewer/page/Fonts.h"

namespace kladez::viewer {

QSizeF PictureObject::intrinsicSize(QTextDocument* document, int /*position*/,
                                    const QTextFormat& format) {
  const QTextImageFormat picture = format.toImageFormat();
  const QPaintDevice* device = document->documentLayout()->paintDevice();
  const double scale = device == nullptr ? 1 : device->logicalDpiY() / kDotsPerInch;
  return QSizeF(picture.width(), picture.height()) * scale;
}

void PictureObject::drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document,
                               int /*position*/, const QTextFormat& format) {
  const QUrl name(format.toImageFormat().name());
  const QImage picture = document->resource(QTextDocument::ImageResource, name).value<QImage>();
  painter->save();
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  // The layout narrows what is too wide and leaves its height.
  const QSizeF size = QSizeF(picture.size()).scaled(rect.size(), Qt::KeepAspectRatio);
  painter->drawImage(QRectF(rect.topLeft(), size), picture);
  painter->restore();
}

}  // namespace kladez::viewer
