// The attributes of a parsed tag, read as browsers read them: font sizes, widths, alignments.
#pragma once

#include <gumbo.h>

#include <QString>
#include <optional>

#include "viewer/page/Page.h"

namespace kladez::viewer {

inline constexpr char16_t kSerif[] = u"Times New Roman";
inline constexpr char16_t kSans[] = u"Arial";
inline constexpr char16_t kMonospace[] = u"Courier New";

// The value of an attribute without blanks around it; "" when it is missing.
QString Attribute(const GumboNode& node, const char* name);

// A property of the attribute STYLE, in lower case; "" when it is missing.
QString StyleProperty(const GumboNode& node, const QString& property);

// The number that begins `text`, or `fallback`: "92px" is 92, "1.5" is 1.
int LeadingNumber(const QString& text, int fallback);

Width ParseWidth(const QString& text);

// What ALIGN (or text-align) and VALIGN of the tag ask for, if anything.
std::optional<Qt::Alignment> AlignmentOf(const GumboNode& node);
std::optional<Qt::Alignment> VerticalOf(const GumboNode& node);

// The style inside <FONT>, <B>, <I>, <U>, <PRE>, a heading or a link, or inside any tag with a font
// size in its STYLE.
TextStyle StyleInside(const GumboNode& node, TextStyle style);

}  // namespace kladez::viewer
