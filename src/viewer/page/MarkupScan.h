// The tags and character references of a page's text, and its plain table rows: those of which
// nearly all of a long print-out consists. They are read as they stand, with no parser of whole
// pages; what is not plain goes to that.
#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace kladez::viewer {

struct TagText {
  bool closes = false;
  QStringView name;        // in the case in which it is written
  QStringView attributes;  // with the blanks before them
  qsizetype length = 0;    // of all of it, "<" to ">"

  // Tags know no letter case.
  bool Is(QStringView other) const { return name.compare(other, Qt::CaseInsensitive) == 0; }
};

// The tag with which `text` begins. None when it is no well-formed one, or longer than any of ours.
std::optional<TagText> ScanTag(QStringView text);

// How long the character reference is with which `text` begins; 0 when that is none.
qsizetype ReferenceLength(QStringView text);

struct AttributeText {
  QStringView name;
  QStringView value;  // without quotes
};

// The attributes of a tag, in their order.
std::vector<AttributeText> AttributesOf(QStringView attributes);

// What a plain row is made of.
struct RowPart {
  enum class Kind { kRow, kCell, kCellEnd, kOpen, kClose, kBreak, kText };
  Kind kind;
  QStringView text;  // of kText as it is written, of the others the attributes
  QChar tag;         // of kOpen and kClose: f, b, i or u
};

// The parts of the plain row that begins at `begin`; after the call `*end` is behind it and behind
// the blanks that follow. Plain is <tr> with cells of text, <br>, and <font>, <b>, <i>, <u> that
// are closed in the order in which they were opened. Gives false, and parts of no use, for another.
bool ScanPlainRow(QStringView text, qsizetype begin, qsizetype* end, std::vector<RowPart>* parts);

// The text that is written, with its references resolved.
QString PlainText(QStringView written);

}  // namespace kladez::viewer
