// Brings a picture of any colours down to one with a table of 256.
#pragma once

#include <span>

#include "books/reports/IndexedImage.h"

namespace kladez {

// `pixels` are the rows from top to bottom without padding, red in bits 16 to 23, green in 8 to 15,
// blue in 0 to 7. The `own` colours are the table's first and stay exact; the shades between them
// share the places that are left, and are exact too as long as there are no more of them than
// places. Throws std::invalid_argument when the pixels do not fill the picture or there are more
// than 255 own colours.
IndexedImage ReduceColours(int width, int height, std::span<const quint32> pixels,
                           std::span<const Rgb> own);

}  // namespace kladez
