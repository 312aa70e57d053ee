#include "formats/TextLines.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <system_error>

namespace kladez {
namespace {

// Bytes 0x80 to 0xBF; from 0xC0 on the code page is the Russian alphabet in order.
constexpr std::array<char16_t, 64> kUpperHalf = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409,
    0x2039, 0x040A, 0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x0098, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0,
    0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB,
    0x00AC, 0x00AD, 0x00AE, 0x0407, 0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6,
    0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457};

constexpr std::array<char16_t, 256> MakeDecodeTable() {
  std::array<char16_t, 256> table{};
  for (int byte = 0; byte < 256; ++byte) {
    table[byte] = byte < 0x80   ? static_cast<char16_t>(byte)
                  : byte < 0xC0 ? kUpperHalf[byte - 0x80]
                                : static_cast<char16_t>(0x0410 + byte - 0xC0);
  }
  return table;
}
constexpr auto kDecode = MakeDecodeTable();

// The highest character of the code page is U+2122. Zero marks a character without a byte.
constexpr int kEncodeSize = 0x2123;
const std::array<unsigned char, kEncodeSize> kEncode = [] {
  std::array<unsigned char, kEncodeSize> table{};
  for (int byte = 1; byte < 256; ++byte) table[kDecode[byte]] = static_cast<unsigned char>(byte);
  return table;
}();

constexpr QByteArrayView kLineEnd{"\r\n", 2};

// Puts as many bytes as the text has characters.
void EncodeTo(QStringView text, char* out) {
  for (const QChar c : text) {
    if (!CanEncode(c)) {
      throw std::system_error(std::make_error_code(std::errc::illegal_byte_sequence),
                              "Не удалось записать знак «" + QString(c).toStdString() + "»");
    }
    *out++ = static_cast<char>(kEncode[c.unicode()]);
  }
}

}  // namespace

QString DecodeText(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  auto* out = reinterpret_cast<char16_t*>(text.data());
  for (char byte : bytes) *out++ = kDecode[static_cast<unsigned char>(byte)];
  return text;
}

bool HoldsText(QByteArrayView bytes, QStringView text) {
  return std::equal(bytes.begin(), bytes.end(), text.begin(), text.end(), [](char byte, QChar c) {
    return kDecode[static_cast<unsigned char>(byte)] == c.unicode();
  });
}

bool CanEncode(QChar c) {
  return c.unicode() == 0 || (c.unicode() < kEncodeSize && kEncode[c.unicode()] != 0);
}

QByteArray EncodeText(QStringView text) {
  QByteArray bytes(text.size(), Qt::Uninitialized);
  EncodeTo(text, bytes.data());
  return bytes;
}

qsizetype FindLineEnd(QByteArrayView bytes) {
  const char* from = bytes.data();
  for (const char* const end = from + bytes.size(); end - from >= 2; ++from) {
    from = static_cast<const char*>(std::memchr(from, '\r', static_cast<size_t>(end - from - 1)));
    if (from == nullptr) break;
    if (from[1] == '\n') return from - bytes.data();
  }
  return -1;
}

void LineReader::LookAtRest() {
  std::array<char, kBlock> rest{};
  std::copy(block_, end_, rest.begin());
  block_end_ = end_;
  returns_ = ReturnsIn(rest.data());
}

void LineWriter::Add(QStringView line) {
  const qsizetype start = bytes_.size();
  bytes_.resize(start + line.size());
  EncodeTo(line, bytes_.data() + start);
  EndLine(start);
}

void LineWriter::AddRaw(QByteArrayView line) {
  const qsizetype start = bytes_.size();
  bytes_.append(line);
  EndLine(start);
}

void LineWriter::EndLine(qsizetype start) {
  // A line end inside a line would shift every later record of the file.
  for (qsizetype at = start, found;
       (found = FindLineEnd(QByteArrayView(bytes_).sliced(at))) >= 0;) {
    at += found;
    bytes_.replace(at, kLineEnd.size(), "  ");
  }
  bytes_.append(kLineEnd);
  HandOn();
}

void LineWriter::AddLines(QByteArrayView lines) {
  bytes_.append(lines);
  if (!lines.isEmpty() && !lines.endsWith(kLineEnd)) bytes_.append(kLineEnd);
  HandOn();
}

void LineWriter::HandOn() {
  constexpr qsizetype kPiece = 1 << 16;
  if (sink_ && bytes_.size() >= kPiece) {
    sink_(bytes_);
    bytes_.resize(0);  // keeps its room
  }
}

QStringList DecodeLines(QByteArrayView bytes) {
  QStringList lines;
  for (LineReader reader(bytes); !reader.AtEnd();) lines.append(reader.Next());
  return lines;
}

QByteArray EncodeLines(const QStringList& lines) {
  LineWriter writer;
  qsizetype size = 0;
  for (const QString& line : lines) size += line.size() + kLineEnd.size();
  writer.Reserve(size);
  for (const QString& line : lines) writer.Add(line);
  return writer.Take();
}

}  // namespace kladez
