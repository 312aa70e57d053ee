// A QR code as a picture that a page can show.
#pragma once

#include <QByteArray>

namespace kladez {

// The bytes of a black and white BMP file, its quiet zone of four modules included; it can be read
// with 15% of it lost. Empty where the text is too long for a code.
QByteArray QrPicture(const QByteArray& text);

}  // namespace kladez
