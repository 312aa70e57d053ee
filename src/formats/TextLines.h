// The text of every file of a Database: Windows-1251, lines ended by CR LF, no header, no mark at
// the end. All 256 byte values survive reading and writing (the one that the code page leaves
// undefined, 0x98, is kept as U+0098), so a foreign line is never damaged by being rewritten.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <bit>
#include <functional>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kladez {

// Windows-1251 bytes to text; never fails.
QString DecodeText(QByteArrayView bytes);

// Whether the bytes are those of the text.
bool HoldsText(QByteArrayView bytes, QStringView text);

// Whether Windows-1251 holds the character. Input fields refuse what it does not.
bool CanEncode(QChar c);

// Text to Windows-1251 bytes. Throws std::system_error (illegal byte sequence) for a character that
// the code page lacks: input fields keep such characters away from writers.
QByteArray EncodeText(QStringView text);

// Where the first CR LF stands, -1 where none does.
qsizetype FindLineEnd(QByteArrayView bytes);

// Walks the lines of a file's bytes. Past the end it gives empty lines, so that the last record of
// a file that was cut reads as a record whose missing fields are empty.
// All that is read is made of short lines, so the carriage returns of 64 bytes are found together.
class LineReader {
 public:
  // Reads from the first line on; the bytes outlive the reader.
  explicit LineReader(QByteArrayView bytes)
      : at_(bytes.data()), end_(at_ + bytes.size()), block_(at_), block_end_(at_) {}

  // No line is left.
  bool AtEnd() const { return at_ == end_; }
  // The next line without its CR LF; the last line of a file may lack the CR LF.
  QByteArrayView NextRaw() {
    const char* const line = at_;
    const char* const line_end = LineEnd();
    at_ = line_end == end_ ? end_ : line_end + 2;
    return {line, line_end};
  }
  QString Next() { return DecodeText(NextRaw()); }
  // The bytes that are not yet walked over.
  qsizetype Left() const { return end_ - at_; }
  // The first byte of the next line, 0 at the end or before an empty line.
  char Peek() const { return AtEnd() || IsLineEnd(at_) ? '\0' : *at_; }

 private:
  static constexpr qsizetype kBlock = 64;

  bool IsLineEnd(const char* at) const { return *at == '\r' && end_ - at > 1 && at[1] == '\n'; }
  const char* LineEnd() {
    while (true) {
      while (returns_ == 0) {
        if (block_end_ == end_) return end_;
        Look();
      }
      const char* const found = block_ + std::countr_zero(returns_);
      returns_ &= returns_ - 1;
      if (IsLineEnd(found)) return found;
    }
  }
  void Look() {
    block_ = block_end_;
    if (end_ - block_ < kBlock) return LookAtRest();
    block_end_ += kBlock;
    returns_ = ReturnsIn(block_);
  }
  void LookAtRest();

  // A bit for each of the 64 bytes, set where it is a carriage return.
  static quint64 ReturnsIn(const char* block) {
    quint64 found = 0;
#ifdef __SSE2__
    const __m128i wanted = _mm_set1_epi8('\r');
    for (int at = kBlock - 16; at >= 0; at -= 16) {
      const __m128i piece = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + at));
      found = found << 16 | static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(piece, wanted)));
    }
#else
    for (int at = 0; at < kBlock; ++at) found |= quint64{block[at] == '\r'} << at;
#endif
    return found;
  }

  const char* at_;
  const char* end_;
  // What is being looked at, and which of its bytes are carriage returns not yet come to.
  const char* block_;
  const char* block_end_;
  quint64 returns_ = 0;
};

// Takes the bytes of a long file piece by piece.
using ByteSink = std::function<void(QByteArrayView piece)>;

// Gathers the bytes of a file line by line.
class LineWriter {
 public:
  LineWriter() = default;
  // Hands the bytes on as they come, so that a file of any length needs little memory.
  explicit LineWriter(ByteSink sink) : sink_(std::move(sink)) {}

  // Adds a line and its end. A line end inside it becomes two blanks. Add throws std::system_error
  // for a character that Windows-1251 lacks.
  void Add(QStringView line);
  void AddRaw(QByteArrayView line);
  // Lines as they stand in a file; the end that the last one may lack is added.
  void AddLines(QByteArrayView lines);
  void Reserve(qsizetype bytes) { bytes_.reserve(bytes); }
  // What has not gone to a sink: without one, all of it.
  QByteArray Take() { return std::move(bytes_); }

 private:
  void EndLine(qsizetype start);
  void HandOn();

  ByteSink sink_;
  QByteArray bytes_;
};

// All lines of a file, and the file of all lines; EncodeLines throws as EncodeText does.
QStringList DecodeLines(QByteArrayView bytes);
QByteArray EncodeLines(const QStringList& lines);

}  // namespace kladez
