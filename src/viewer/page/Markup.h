// The attributes of a parsed tag, read as browsers read them: font sizes, widths, alignments.
#pragma once

#include <gumbo.h>

#include <QString>
#include <optional>

#include "viewer/page/MarkupScan.h"
#include "viewer/page/Page.h"

namespace kladez::viewer {

inline constexpr char16_t kSerif[] = u"Times New Roman";
inline constexpr char16_t kSans[] = u"Arial";
inline constexpr char16_t kMonospace[] = u"Courier New";

// A tag with its attributes, as the parser found it or as it is written in a plain row.
class Tag {
 public:
  // Of a node of the parsed page; of a tag as it is written.
  explicit Tag(const GumboNode& node)
      : kind_(node.v.element.tag), parsed_(&node.v.element.attributes) {}
  Tag(GumboTag kind, QStringView attributes) : kind_(kind), written_(AttributesOf(attributes)) {}

  // Which tag it is.
  GumboTag kind() const { return kind_; }

  // The value of an attribute without blanks around it; "" when it is missing.
  QString Attribute(const char* name) const;

  // A property of the attribute STYLE, in lower case; "" when it is missing.
  QString StyleProperty(const QString& property) const;

 private:
  GumboTag kind_;
  const GumboVector* parsed_ = nullptr;
  std::vector<AttributeText> written_;
};

// The number that begins `text`, or `fallback`: "92px" is 92, "1.5" is 1.
int LeadingNumber(const QString& text, int fallback);

// From "30%" or "92": percent, pixels, or none where it is neither.
Width ParseWidth(const QString& text);

// What ALIGN (or text-align) and VALIGN of the tag ask for, if anything.
std::optional<Qt::Alignment> AlignmentOf(const Tag& tag);
std::optional<Qt::Alignment> VerticalOf(const Tag& tag);

// The style inside <FONT>, <B>, <I>, <U>, <PRE>, a heading or a link, or inside any tag with a font
// size in its STYLE.
TextStyle StyleInside(const Tag& tag, TextStyle style);

}  // namespace kladez::viewer
