// The text of every file of a Database: Windows-1251, lines ended by CR LF, no header, no mark at
// the end. All 256 byte values survive reading and writing (the one that the code page leaves
// undefined, 0x98, is kept as U+0098), so a foreign line is never damaged by being rewritten.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <bit>
#include <cstring>
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

// Where the first CR LF stands, -1 where none does. Lines are short and all that is read is made of
// them, so sixteen bytes are looked at together where the machine can.
inline qsizetype FindLineEnd(QByteArrayView bytes) {
  const char* from = bytes.data();
  const char* const end = from + bytes.size();
#ifdef __SSE2__
  constexpr qsizetype kStep = 16;
  const __m128i wanted = _mm_set1_epi8('\r');
  for (; end - from > kStep; from += kStep) {
    const __m128i piece = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    auto found = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(piece, wanted)));
    for (; found != 0; found &= found - 1) {
      const char* cr = from + std::countr_zero(found);
      if (cr[1] == '\n') return cr - bytes.data();  // one byte at least stands behind the piece
    }
  }
#endif
  while (end - from >= 2) {
    const auto* cr =
        static_cast<const char*>(std::memchr(from, '\r', static_cast<size_t>(end - from - 1)));
    if (cr == nullptr) break;
    if (cr[1] == '\n') return cr - bytes.data();
    from = cr + 1;
  }
  return -1;
}

// Walks the lines of a file's bytes. Past the end it gives empty lines, so that the last record of
// a file that was cut reads as a record whose missing fields are empty.
class LineReader {
 public:
  // Reads from the first line on; the bytes outlive the reader.
  explicit LineReader(QByteArrayView bytes) : rest_(bytes) {}

  // No line is left.
  bool AtEnd() const { return rest_.isEmpty(); }
  // The next line without its CR LF; the last line of a file may lack the CR LF.
  QByteArrayView NextRaw() {
    const qsizetype end = FindLineEnd(rest_);
    const QByteArrayView line = end < 0 ? rest_ : rest_.first(end);
    rest_ = end < 0 ? QByteArrayView() : rest_.sliced(end + 2);
    return line;
  }
  QString Next() { return DecodeText(NextRaw()); }
  // The bytes that are not yet walked over.
  qsizetype Left() const { return rest_.size(); }
  // The first byte of the next line, 0 at the end or before an empty line.
  char Peek() const;

 private:
  QByteArrayView rest_;
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
