// Turns an indexed picture into the bytes of a GIF file ("temp.gif" of a printed chart).
#pragma once

#include <QByteArray>

#include "books/reports/IndexedImage.h"

namespace kladez {

// A GIF89a file of one image, not interlaced, with a global table of 256 colours. Throws
// std::invalid_argument when a side is not 1 to 65535 pixels or the pixels do not fill the picture.
QByteArray WriteGif(const IndexedImage& image);

}  // namespace kladez
