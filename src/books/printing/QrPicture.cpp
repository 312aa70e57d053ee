#include "books/printing/QrPicture.h"

#include <qrencode.h>

#include <QtEndian>
#include <memory>

namespace kladez {
namespace {

constexpr int kQuietModules = 4;
constexpr int kModulePixels = 8;
constexpr int kHeaderBytes = 62;  // file header, picture header, two colours

void Put16(QByteArray& bytes, quint16 value) {
  value = qToLittleEndian(value);
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void Put32(QByteArray& bytes, quint32 value) {
  value = qToLittleEndian(value);
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

QByteArray Header(int side, int row_bytes) {
  const auto picture_bytes = static_cast<quint32>(row_bytes * side);
  QByteArray header("BM");
  Put32(header, kHeaderBytes + picture_bytes);
  Put32(header, 0);
  Put32(header, kHeaderBytes);
  Put32(header, 40);  // of the picture's own header
  Put32(header, static_cast<quint32>(side));
  Put32(header, static_cast<quint32>(side));
  Put16(header, 1);  // plane
  Put16(header, 1);  // bit a pixel
  Put32(header, 0);  // not compressed
  Put32(header, picture_bytes);
  Put32(header, 0);
  Put32(header, 0);
  Put32(header, 2);
  Put32(header, 0);
  Put32(header, 0x00ffffff);  // a bit that is not set is white,
  Put32(header, 0);           // one that is set is black
  return header;
}

}  // namespace

QByteArray QrPicture(const QByteArray& text) {
  const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
      QRcode_encodeData(static_cast<int>(text.size()),
                        reinterpret_cast<const unsigned char*>(text.constData()), 0, QR_ECLEVEL_M),
      QRcode_free);
  if (!code) return {};
  const int side = (code->width + 2 * kQuietModules) * kModulePixels;
  const int row_bytes = (side + 31) / 32 * 4;
  QByteArray picture = Header(side, row_bytes);
  for (int y = side - 1; y >= 0; --y) {  // the lowest row stands first
    QByteArray row(row_bytes, '\0');
    const int module_y = y / kModulePixels - kQuietModules;
    for (int x = 0; x < side; ++x) {
      const int module_x = x / kModulePixels - kQuietModules;
      if (module_x < 0 || module_y < 0 || module_x >= code->width || module_y >= code->width) {
        continue;
      }
      if ((code->data[module_y * code->width + module_x] & 1) == 0) continue;
      row[x / 8] = static_cast<char>(row[x / 8] | (0x80 >> x % 8));
    }
    picture += row;
  }
  return picture;
}

}  // namespace kladez
