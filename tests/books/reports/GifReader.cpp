#include "books/reports/GifReader.h"

#include <stdexcept>

namespace kladez {
namespace {

void Require(bool holds, const char* otherwise) {
  if (!holds) throw std::runtime_error(otherwise);
}

class Bytes {
 public:
  explicit Bytes(const QByteArray& file) : file_(file) {}

  int Byte() {
    Require(at_ < file_.size(), "the file is cut");
    return static_cast<unsigned char>(file_[at_++]);
  }
  int Word() {
    const int low = Byte();
    return low + 256 * Byte();
  }
  bool AtEnd() const { return at_ == file_.size(); }

 private:
  QByteArray file_;
  qsizetype at_ = 0;
};

std::vector<bool> ReadBlockBits(Bytes* file) {
  std::vector<bool> bits;
  bool short_block = false;
  for (int length = file->Byte(); length > 0; length = file->Byte()) {
    Require(!short_block, "a block before the last one is not full");
    short_block = length < 255;
    for (int i = 0; i < length; ++i) {
      const int byte = file->Byte();
      for (int bit = 0; bit < 8; ++bit) bits.push_back((byte >> bit & 1) != 0);
    }
  }
  return bits;
}

// A string is a stretch of the pixels read so far: the last string and the pixel that follows it.
class Unpacker {
 public:
  explicit Unpacker(std::vector<bool> bits) : bits_(std::move(bits)) {}

  std::vector<quint8> Run() {
    Require(NextCode() == kClear, "the first code does not clear the table");
    for (int code = NextCode(); code != kEnd; code = NextCode()) {
      if (code == kClear) {
        strings_.clear();
        last_ = Stretch{};
        width_ = 9;
      } else {
        Take(code);
      }
    }
    Require(bits_.size() - at_ < 8, "there are bytes after the end code");
    return std::move(pixels_);
  }

 private:
  static constexpr int kClear = 256;
  static constexpr int kEnd = 257;

  struct Stretch {
    size_t start = 0;
    size_t length = 0;
  };

  int NextCode() {
    int code = 0;
    for (int bit = 0; bit < width_; ++bit) {
      Require(at_ < bits_.size(), "the codes stop without an end code");
      if (bits_[at_++]) code += 1 << bit;
    }
    return code;
  }

  int NextFree() const { return 258 + static_cast<int>(strings_.size()); }

  void Take(int code) {
    if (last_.length > 0 && NextFree() < 4096) strings_.push_back({last_.start, last_.length + 1});
    const size_t start = pixels_.size();
    if (code < 256) {
      pixels_.push_back(static_cast<quint8>(code));
    } else {
      Require(code < NextFree(), "a code that was never defined");
      const Stretch string = strings_[static_cast<size_t>(code - 258)];
      // The newest string ends in the first pixel of its own copy, so it goes pixel by pixel.
      for (size_t i = 0; i < string.length; ++i) pixels_.push_back(pixels_[string.start + i]);
    }
    last_ = {start, pixels_.size() - start};
    if (NextFree() == 1 << width_ && width_ < 12) ++width_;
  }

  std::vector<bool> bits_;
  size_t at_ = 0;
  int width_ = 9;
  std::vector<Stretch> strings_;
  Stretch last_;
  std::vector<quint8> pixels_;
};

}  // namespace

IndexedImage ReadGif(const QByteArray& file) {
  Bytes bytes(file);
  for (const char letter : {'G', 'I', 'F', '8', '9', 'a'}) {
    Require(bytes.Byte() == letter, "not a GIF89a");
  }
  IndexedImage image;
  image.width = bytes.Word();
  image.height = bytes.Word();
  const int flags = bytes.Byte();
  Require((flags & 0x80) != 0 && (flags & 7) == 7, "no global table of 256 colours");
  Require(bytes.Byte() == 0 && bytes.Byte() == 0, "a ground or pixel shape of its own");
  for (Rgb& colour : image.colours) {
    colour.red = static_cast<quint8>(bytes.Byte());
    colour.green = static_cast<quint8>(bytes.Byte());
    colour.blue = static_cast<quint8>(bytes.Byte());
  }
  Require(bytes.Byte() == 0x2C && bytes.Word() == 0 && bytes.Word() == 0, "no image at 0, 0");
  Require(bytes.Word() == image.width && bytes.Word() == image.height, "not of the screen's size");
  Require(bytes.Byte() == 0, "interlaced, or a table of its own");
  Require(bytes.Byte() == 8, "not 8 bits a pixel");
  image.pixels = Unpacker(ReadBlockBits(&bytes)).Run();
  Require(bytes.Byte() == 0x3B && bytes.AtEnd(), "no trailer at the end");
  return image;
}

}  // namespace kladez
