#include "tour/OffscreenDisplay.h"

namespace kladez {

std::unique_ptr<QTemporaryFile> UseOffscreenDisplay(QSize size) {
  auto file = std::make_unique<QTemporaryFile>();
  file->open();
  file->write(QByteArrayLiteral("{\"screens\":[{\"name\":\"tour\",\"x\":0,\"y\":0,\"width\":") +
              QByteArray::number(size.width()) +
              ",\"height\":" + QByteArray::number(size.height()) + ",\"dpi\":96,\"dpr\":1}]}");
  file->close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file->fileName().toLocal8Bit());
  return file;
}

}  // namespace kladez
