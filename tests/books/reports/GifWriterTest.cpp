#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <random>
#include <stdexcept>

#include "books/reports/GifReader.h"
#include "books/reports/GifWriter.h"

namespace kladez {
namespace {

// 256 different colours, so that a wrong index shows as a wrong colour too.
ColourTable TellingColours() {
  ColourTable table;
  for (int i = 0; i < 256; ++i) {
    table[static_cast<size_t>(i)] = {static_cast<quint8>(i), static_cast<quint8>(255 - i),
                                     static_cast<quint8>(i * 37 % 256)};
  }
  return table;
}

IndexedImage OneColour(int width, int height, quint8 index) {
  return {width, height, TellingColours(),
          std::vector<quint8>(static_cast<size_t>(width) * height, index)};
}

IndexedImage Noise(int width, int height, int colours) {
  std::mt19937 random(20261122);
  IndexedImage image = OneColour(width, height, 0);
  for (auto& pixel : image.pixels) pixel = static_cast<quint8>(random() % colours);
  return image;
}

void ExpectReadsBackAlike(const IndexedImage& image, const QByteArray& file) {
  const IndexedImage read = ReadGif(file);
  ASSERT_EQ(read.width, image.width);
  ASSERT_EQ(read.height, image.height);
  EXPECT_EQ(read.colours, image.colours);
  EXPECT_TRUE(read.pixels == image.pixels);
}

// The reader that comes with the toolkit is a stranger to both the writer and the tests' reader.
void ExpectToolkitReadsAlike(const IndexedImage& image, QByteArray file) {
  QBuffer buffer(&file);
  QImageReader reader(&buffer, "gif");
  const QImage read = reader.read().convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(read.size(), QSize(image.width, image.height)) << qPrintable(reader.errorString());
  size_t differing = 0;
  for (int y = 0; y < image.height; ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(read.constScanLine(y));
    for (int x = 0; x < image.width; ++x) {
      const size_t at = static_cast<size_t>(y) * image.width + x;
      const Rgb& colour = image.colours[image.pixels[at]];
      if (row[x] != qRgb(colour.red, colour.green, colour.blue)) ++differing;
    }
  }
  EXPECT_EQ(differing, 0U);
}

TEST(GifWriter, NoPixelIsLostOrChanged) {
  const struct {
    const char* fault;
    IndexedImage image;
  } cases[] = {
      {"nothing to put together", OneColour(1, 1, 255)},
      {"one column", Noise(1, 700, 256)},
      {"one row", Noise(700, 1, 256)},
      {"the table fills many times", Noise(400, 300, 256)},
      {"long codes of few colours", Noise(640, 480, 2)},
      {"the longest strings until the table is full", OneColour(2800, 2800, 7)},
  };
  for (const auto& [fault, image] : cases) {
    SCOPED_TRACE(fault);
    const QByteArray file = WriteGif(image);
    ExpectReadsBackAlike(image, file);
    if (QImageReader::supportedImageFormats().contains("gif")) ExpectToolkitReadsAlike(image, file);
  }
}

// Noise of 256 colours makes about one code a pixel, so that these lengths let the picture end on
// each side of every growth of the code's width, of the clearing of the table and of a full block.
TEST(GifWriter, EndOfPictureMeetsEveryLimit) {
  const struct {
    int first;
    int last;
  } ranges[] = {{200, 270}, {440, 530}, {740, 800}, {1740, 1830}, {3780, 3960}};
  for (const auto& range : ranges) {
    for (int length = range.first; length <= range.last; ++length) {
      SCOPED_TRACE(length);
      const IndexedImage image = Noise(length, 1, 256);
      ExpectReadsBackAlike(image, WriteGif(image));
    }
  }
}

TEST(GifWriter, BytesOfTheSmallestFile) {
  const QByteArray file = WriteGif(OneColour(1, 1, 3));
  EXPECT_EQ(file.left(13).toHex(), "47494638396101000100f70000");
  EXPECT_EQ(file.mid(13, 6).toHex(), "00ff0001fe25");
  // Descriptor, 8 bits, one block with the codes 256, 3 and 257 of 9 bits, the end.
  EXPECT_EQ(file.mid(13 + 768).toHex(),
            "2c00000000010001000008"
            "04"
            "00070404"
            "00"
            "3b");
}

TEST(GifWriter, RefusesWhatTheFormatCannotHold) {
  IndexedImage cut = OneColour(4, 4, 0);
  cut.pixels.pop_back();
  EXPECT_THROW(WriteGif(cut), std::invalid_argument);
  EXPECT_THROW(WriteGif(OneColour(65536, 1, 0)), std::invalid_argument);
  EXPECT_THROW(WriteGif(IndexedImage{}), std::invalid_argument);
}

}  // namespace
}  // namespace kladez
