// How much of a page is shown. Far more than any print-out has; a page made to do harm ends here,
// with a line that says so.
#pragma once

#include <QtGlobal>

namespace kladez::viewer::limits {

inline constexpr qsizetype kBytes = 32'000'000;  // of the file
inline constexpr qsizetype kMarkup = 4'000'000;  // letters of it outside of plain table rows
inline constexpr int kTags = 100'000;            // there too
inline constexpr qsizetype kLetters = 16'000'000;
inline constexpr qsizetype kLettersOfCell = 20'000;
inline constexpr qsizetype kCells = 500'000;  // of all tables, the empty places of their grids too
inline constexpr int kColumns = 300;
inline constexpr size_t kStyles = 500;

// What is deeper is shown in what is around it: the tags are left out, and no text.
inline constexpr size_t kTables = 4;     // one in a cell of the other
inline constexpr int kBlocks = 32;       // <div>, <center>, <pre>
inline constexpr int kFormats = 16;      // <font>, <b>, <i>, <u>
inline constexpr int kStrayTags = 1000;  // of all that stand in a table and in no cell

// A paragraph goes on in another, and a word on the next line.
inline constexpr qsizetype kLettersOfParagraph = 10'000;
inline constexpr qsizetype kLettersOfWord = 500;

inline constexpr qint64 kPictureBytes = 16'000'000;      // of a file
inline constexpr double kPictureSide = 2000;             // pixels that a page may ask for
inline constexpr qsizetype kPicturePoints = 64'000'000;  // bytes of all that are shown

}  // namespace kladez::viewer::limits
