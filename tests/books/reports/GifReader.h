// A GIF reader for tests only, written apart from the writer and strict: whatever a viewer could
// stumble over throws std::runtime_error.
#pragma once

#include <QByteArray>

#include "books/reports/IndexedImage.h"

namespace kladez {

// Takes a file of one image with a global table of 256 colours, and nothing before or after it.
IndexedImage ReadGif(const QByteArray& file);

}  // namespace kladez
