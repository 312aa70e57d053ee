#include "books/reports/GifWriter.h"

#include <stdexcept>

namespace kladez {
namespace {

constexpr int kClearCode = 256;
constexpr int kEndCode = 257;
constexpr int kFirstFreeCode = 258;
constexpr int kCodeLimit = 4096;
constexpr int kFirstWidth = 9;
constexpr int kLastWidth = 12;
constexpr int kBlockSize = 255;
constexpr int kLargestSide = 65535;

// Packs codes low bit first into blocks, each with its length byte in front.
class CodeStream {
 public:
  explicit CodeStream(QByteArray* out) : out_(out) { OpenBlock(); }

  void Put(int code, int width) {
    pending_ |= static_cast<quint32>(code) << pending_bits_;
    pending_bits_ += width;
    while (pending_bits_ >= 8) PutByte();
  }

  void Finish() {
    if (pending_bits_ > 0) PutByte();
    CloseBlock();
    // The block that is open may just have been closed full: its empty successor is the end mark.
    if (length_ > 0) out_->append('\0');
  }

 private:
  void PutByte() {
    out_->append(static_cast<char>(pending_ & 0xFF));
    pending_ >>= 8;
    pending_bits_ -= 8;
    if (++length_ == kBlockSize) {
      CloseBlock();
      OpenBlock();
    }
  }

  void OpenBlock() {
    length_at_ = out_->size();
    length_ = 0;
    out_->append('\0');
  }

  void CloseBlock() { (*out_)[length_at_] = static_cast<char>(length_); }

  QByteArray* out_;
  quint32 pending_ = 0;
  int pending_bits_ = 0;
  qsizetype length_at_ = 0;
  int length_ = 0;
};

// The strings that have a code. A string is its prefix's code and one more pixel; both and the
// string's own code fit one 32-bit slot, so that a look-up touches one cache line.
class StringTable {
 public:
  StringTable() { Clear(); }

  void Clear() {
    slots_.fill(kEmpty);
    next_code_ = kFirstFreeCode;
  }

  int NextCode() const { return next_code_; }

  // The code of prefix + pixel, or -1 when the string is new; a new one is then remembered under
  // the next free code while there is one.
  int FindOrAdd(int prefix, quint8 pixel) {
    const quint32 key = static_cast<quint32>(prefix) << 8 | pixel;
    size_t at = (key * kSpread) >> (32 - kSlotBits);
    for (; slots_[at] != kEmpty; at = (at + 1) % kSlots) {
      if (slots_[at] >> kLastWidth == key) return static_cast<int>(slots_[at] % kCodeLimit);
    }
    if (next_code_ < kCodeLimit) {
      slots_[at] = key << kLastWidth | static_cast<quint32>(next_code_++);
    }
    return -1;
  }

 private:
  static constexpr int kSlotBits = 13;
  static constexpr size_t kSlots = size_t{1} << kSlotBits;
  static constexpr quint32 kSpread = 2654435769u;  // 2^32 divided by the golden ratio
  // No string has this value: its own code would have to equal its prefix's.
  static constexpr quint32 kEmpty = 0xFFFFFFFF;

  std::array<quint32, kSlots> slots_;
  int next_code_ = kFirstFreeCode;
};

void Compress(const std::vector<quint8>& pixels, QByteArray* out) {
  CodeStream codes(out);
  StringTable strings;
  int width = kFirstWidth;
  // A reader knows each string one code later than the writer, so the width grows by what was known
  // before the code that is put.
  const auto put = [&](int code, int known) {
    codes.Put(code, width);
    if (known == 1 << width && width < kLastWidth) ++width;
  };

  codes.Put(kClearCode, width);
  int string = pixels.front();
  for (size_t i = 1; i < pixels.size(); ++i) {
    const int known = strings.NextCode();
    const int longer = strings.FindOrAdd(string, pixels[i]);
    if (longer >= 0) {
      string = longer;
      continue;
    }
    put(string, known);
    if (known == kCodeLimit) {
      codes.Put(kClearCode, width);
      strings.Clear();
      width = kFirstWidth;
    }
    string = pixels[i];
  }
  put(string, strings.NextCode());
  codes.Put(kEndCode, width);
  codes.Finish();
}

void PutWord(int value, QByteArray* out) {
  out->append(static_cast<char>(value & 0xFF));
  out->append(static_cast<char>(value >> 8));
}

void PutScreen(const IndexedImage& image, QByteArray* out) {
  out->append("GIF89a");
  PutWord(image.width, out);
  PutWord(image.height, out);
  out->append('\xF7');  // a global table of 2^8 colours, 8 bits a primary colour, not sorted
  out->append('\0');    // index of the ground
  out->append('\0');    // pixels are square
  for (const Rgb& colour : image.colours) {
    out->append(static_cast<char>(colour.red));
    out->append(static_cast<char>(colour.green));
    out->append(static_cast<char>(colour.blue));
  }
}

void PutImageDescriptor(const IndexedImage& image, QByteArray* out) {
  out->append(',');
  PutWord(0, out);
  PutWord(0, out);
  PutWord(image.width, out);
  PutWord(image.height, out);
  out->append('\0');  // no table of its own, not interlaced
}

}  // namespace

QByteArray WriteGif(const IndexedImage& image) {
  const bool sides_fit = image.width >= 1 && image.width <= kLargestSide && image.height >= 1 &&
                         image.height <= kLargestSide;
  if (!sides_fit) throw std::invalid_argument("a GIF is 1 to 65535 pixels wide and high");
  if (image.pixels.size() != static_cast<size_t>(image.width) * image.height) {
    throw std::invalid_argument("the pixels do not fill the picture");
  }
  QByteArray out;
  out.reserve(1024 + static_cast<qsizetype>(image.pixels.size() / 8));
  PutScreen(image, &out);
  PutImageDescriptor(image, &out);
  out.append('\x08');  // bits of a pixel
  Compress(image.pixels, &out);
  out.append(';');
  return out;
}

}  // namespace kladez
