#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <stdexcept>

#include "books/reports/ColourTable.h"

namespace kladez {
namespace {

Rgb ColourAt(const IndexedImage& image, size_t at) { return image.colours[image.pixels[at]]; }

Rgb FromPixel(quint32 pixel) {
  return {static_cast<quint8>(pixel >> 16), static_cast<quint8>(pixel >> 8),
          static_cast<quint8>(pixel)};
}

TEST(ReduceColours, FewColoursStayExactWhateverTheirNumberOfPixels) {
  std::vector<quint32> pixels(10000, 0xFFFFFFFF);
  for (quint32 i = 0; i < 250; ++i) pixels[i * 7] = 0xFF000000 | (i * 0x010203);
  const std::vector<Rgb> own = {{255, 255, 255}, {0x1F, 0x4E, 0x5F}};
  const IndexedImage image = ReduceColours(100, 100, pixels, own);
  EXPECT_EQ(image.colours[0], own[0]);
  EXPECT_EQ(image.colours[1], own[1]);
  for (size_t i = 0; i < pixels.size(); ++i) {
    ASSERT_EQ(ColourAt(image, i), FromPixel(pixels[i])) << i;
  }
}

TEST(ReduceColours, OwnColoursStayExactAmongThousandsOfShades) {
  std::mt19937 random(7);
  std::vector<quint32> pixels;
  for (int i = 0; i < 40000; ++i) pixels.push_back(random() & 0xFFFFFF);
  // A single pixel of its own, among neighbours that a table would merge it with.
  pixels[123] = 0x1F4E5F;
  pixels[124] = 0x1F4E60;
  const std::vector<Rgb> own = {{0x1F, 0x4E, 0x5F}};
  const IndexedImage image = ReduceColours(200, 200, pixels, own);
  EXPECT_EQ(image.pixels[123], 0);
  // 255 boxes over the whole cube are about 40 wide: no shade may land in a far corner.
  for (size_t i = 0; i < pixels.size(); ++i) {
    const Rgb is = ColourAt(image, i);
    const Rgb was = FromPixel(pixels[i]);
    ASSERT_LT(
        std::abs(is.red - was.red) + std::abs(is.green - was.green) + std::abs(is.blue - was.blue),
        120);
  }
}

TEST(ReduceColours, RefusesWhatDoesNotFit) {
  const std::vector<quint32> pixels(6);
  EXPECT_THROW(ReduceColours(2, 2, pixels, {}), std::invalid_argument);
  EXPECT_THROW(ReduceColours(0, 0, {}, {}), std::invalid_argument);
  const std::vector<Rgb> too_many(256);
  EXPECT_THROW(ReduceColours(3, 2, pixels, too_many), std::invalid_argument);
}

}  // namespace
}  // namespace kladez
