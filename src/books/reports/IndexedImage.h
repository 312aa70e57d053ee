// A picture of at most 256 colours in memory: what a drawn chart becomes on its way into a file.
#pragma once

#include <QtGlobal>
#include <array>
#include <vector>

namespace kladez {

struct Rgb {
  quint8 red = 0;
  quint8 green = 0;
  quint8 blue = 0;

  bool operator==(const Rgb&) const = default;
};

using ColourTable = std::array<Rgb, 256>;

// Sizes in pixels. `pixels` holds the rows from top to bottom without padding, one index into
// `colours` a pixel.
struct IndexedImage {
  int width = 0;
  int height = 0;
  ColourTable colours{};
  std::vector<quint8> pixels;
};

}  // namespace kladez
