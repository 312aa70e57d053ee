// The lines of a file as its format wants them, and what is wrong with them as lines whatever they
// hold: ends that are not CR LF, a last line without its end, lines longer than any that a screen
// writes, bytes that stand for no character of Windows-1251.
#pragma once

#include <QByteArrayView>
#include <vector>

#include "books/check/Findings.h"

namespace kladez {

class StrictLines {
 public:
  // Takes the bytes of a file apart and adds what is wrong to the findings of `file`. Lines end at
  // CR LF, LF or CR alike, as they will once the file is repaired. The views are valid as long as
  // the bytes. A file of more than kMostLines lines is taken apart so far only, and says so.
  void Read(const QString& file, QByteArrayView bytes, FindingList& findings);

  // As they stand, undecoded, without their ends.
  const std::vector<QByteArrayView>& Lines() const { return lines_; }
  // False where there were more than kMostLines.
  bool AreAll() const { return all_; }
  // The lines that stand before the empty ones at the end.
  size_t FilledLines() const;

 private:
  std::vector<QByteArrayView> lines_;
  bool all_ = true;
};

// More is no file of a shop, and each line takes its memory here.
inline constexpr size_t kMostLines = 8'000'000;

// The longest line that is no finding, in characters.
inline constexpr qsizetype kLongestLine = 1000;

// Whether the bytes are UTF-8 text with characters beyond ASCII; Windows-1251 text never is.
bool IsUtf8Text(QByteArrayView bytes);

}  // namespace kladez
