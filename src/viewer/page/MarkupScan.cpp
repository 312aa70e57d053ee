#include "viewer/page/MarkupScan.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kladez::viewer {

namespace {

// No tag of a print-out is as long; it bounds the look ahead at each "<".
constexpr qsizetype kLongestTag = 1000;

bool IsBlank(QChar c) { return c == u' ' || (c >= u'\t' && c <= u'\r' && c != u'\v'); }

bool IsLetter(QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }

// Walks over a text; past its end there is only U+0000.
class Walker {
 public:
  explicit Walker(QStringView text, qsizetype at = 0) : text_(text), at_(at) {}

  QChar Here() const { return at_ < text_.size() ? text_[at_] : QChar(); }
  qsizetype At() const { return at_; }
  void Go(qsizetype count) { at_ += count; }
  QStringView Since(qsizetype begin) const { return text_.sliced(begin, at_ - begin); }
  template <typename Is>
  bool Skip(Is is) {
    const qsizetype begin = at_;
    while (at_ < text_.size() && is(text_[at_])) ++at_;
    return at_ > begin;
  }
  bool Take(QChar c) {
    if (at_ >= text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

 private:
  QStringView text_;
  qsizetype at_;
};

bool SkipValue(Walker& walker, QStringView* value) {
  const QChar quote = walker.Here();
  const bool quoted = walker.Take(u'"') || walker.Take(u'\'');
  const qsizetype begin = walker.At();
  const bool any = walker.Skip([quoted, quote](QChar c) {
    if (c == u'<' || c == u'>') return false;
    return quoted ? c != quote : !IsBlank(c) && c != u'"' && c != u'\'';
  });
  *value = walker.Since(begin);
  return quoted ? walker.Take(quote) : any;
}

// One attribute with the blanks before it; the walker stays where it is when there is none.
bool SkipAttribute(Walker& walker, AttributeText* attribute) {
  Walker ahead = walker;
  if (!ahead.Skip(IsBlank)) return false;
  const qsizetype begin = ahead.At();
  if (!ahead.Skip([](QChar c) { return IsLetter(c) || c == u'-'; })) return false;
  *attribute = {ahead.Since(begin), {}};
  walker = ahead;
  ahead.Skip(IsBlank);
  if (!ahead.Take(u'=')) return true;
  ahead.Skip(IsBlank);
  if (SkipValue(ahead, &attribute->value)) walker = ahead;
  return true;
}

constexpr std::array<std::pair<QStringView, char16_t>, 5> kReferences = {
    {{u"nbsp", u'\u00A0'}, {u"amp", u'&'}, {u"lt", u'<'}, {u"gt", u'>'}, {u"quot", u'"'}}};

// Reads a row from left to right. Whatever it does not know makes the row no plain one.
class RowScanner {
 public:
  RowScanner(QStringView text, qsizetype begin, std::vector<RowPart>* parts)
      : text_(text), at_(begin), parts_(parts) {}

  bool Run(qsizetype* end) {
    if (!TakeTag(u"tr", false, RowPart::Kind::kRow)) return false;
    SkipBlanks();
    while (!TakeTag(u"tr", true, {})) {
      if (!TakeTag(u"td", false, RowPart::Kind::kCell) || !TakeContent()) return false;
      SkipBlanks();
    }
    SkipBlanks();
    *end = at_;
    return true;
  }

 private:
  void SkipBlanks() {
    while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
  }

  void Add(RowPart::Kind kind, QStringView text, QChar tag = {}) {
    if (parts_ != nullptr) parts_->push_back({kind, text, tag});
  }

  bool TakeTag(QStringView name, bool closes, std::optional<RowPart::Kind> kind) {
    const auto tag = ScanTag(text_.sliced(at_));
    if (!tag || tag->closes != closes || !tag->Is(name) || !IsSimple(*tag)) return false;
    at_ += tag->length;
    if (kind && !closes) Add(*kind, tag->attributes);
    return true;
  }

  static bool IsSimple(const TagText& tag) { return !tag.attributes.contains(u'&'); }

  // What stands in a cell, and its end.
  bool TakeContent() {
    opened_.clear();
    qsizetype begin = at_;
    while (at_ < text_.size()) {
      const QChar c = text_[at_];
      if (c == u'&' && !TakeReference()) return false;
      if (c == u'&') continue;
      const auto tag = c == u'<' ? ScanTag(text_.sliced(at_)) : std::nullopt;
      if (!tag) {
        ++at_;
        // An opened tag that goes on to nowhere is left to those who know more.
        if (c == u'<' && at_ < text_.size() && (IsLetter(text_[at_]) || text_[at_] == u'/'))
          return false;
        continue;
      }
      if (at_ > begin) Add(RowPart::Kind::kText, text_.sliced(begin, at_ - begin));
      const bool follows_markup = text_[at_ - 1] == u'>' || text_[at_ - 1] == u'\n';
      at_ += tag->length;
      begin = at_;
      if (tag->Is(u"td") && tag->closes) {
        Add(RowPart::Kind::kCellEnd, {});
        return opened_.isEmpty();
      }
      if (!TakeInline(*tag, follows_markup)) return false;
    }
    return false;
  }

  bool TakeInline(const TagText& tag, bool follows_markup) {
    if (tag.Is(u"br") && !tag.closes && IsSimple(tag)) {
      Add(RowPart::Kind::kBreak, {});
      return true;
    }
    const bool is_font = tag.Is(u"font");
    if (!is_font && !tag.Is(u"b") && !tag.Is(u"i") && !tag.Is(u"u")) return false;
    const QChar letter = tag.name[0].toLower();
    if (tag.closes) {
      if (!opened_.endsWith(letter)) return false;
      opened_.chop(1);
      Add(RowPart::Kind::kClose, {}, letter);
      return true;
    }
    if (!IsSimple(tag) || (!is_font && (!follows_markup || !tag.attributes.isEmpty())))
      return false;
    opened_ += letter;
    Add(RowPart::Kind::kOpen, tag.attributes, letter);
    return opened_.size() < 8;
  }

  bool TakeReference() {
    const qsizetype length = ReferenceLength(text_.sliced(at_));
    const QStringView name = length == 0 ? QStringView() : text_.sliced(at_ + 1, length - 2);
    at_ += std::max<qsizetype>(1, length);
    return length == 0 || std::any_of(kReferences.begin(), kReferences.end(),
                                      [name](const auto& known) { return known.first == name; });
  }

  QStringView text_;
  qsizetype at_;
  std::vector<RowPart>* parts_;
  QString opened_;
};

}  // namespace

std::optional<TagText> ScanTag(QStringView text) {
  Walker walker(text.left(kLongestTag));
  if (!walker.Take(u'<')) return std::nullopt;
  TagText tag;
  tag.closes = walker.Take(u'/');
  const qsizetype begin = walker.At();
  if (!walker.Skip(IsLetter)) return std::nullopt;
  tag.name = walker.Since(begin);
  const qsizetype attributes = walker.At();
  AttributeText attribute;
  while (SkipAttribute(walker, &attribute)) {
  }
  tag.attributes = walker.Since(attributes);
  walker.Skip(IsBlank);
  walker.Take(u'/');
  if (!walker.Take(u'>')) return std::nullopt;
  tag.length = walker.At();
  return tag;
}

qsizetype ReferenceLength(QStringView text) {
  Walker walker(text.left(10));
  if (!walker.Take(u'&')) return 0;
  const qsizetype begin = walker.At();
  if (walker.Take(u'#')) {
    const bool is_hex = walker.Take(u'x') || walker.Take(u'X');
    const qsizetype digits = walker.At();
    walker.Skip([is_hex](QChar c) {
      return (c >= u'0' && c <= u'9') || (is_hex && c.toLower() >= u'a' && c.toLower() <= u'f');
    });
    const qsizetype count = walker.At() - digits;
    if (count < 1 || count > (is_hex ? 5 : 6)) return 0;
  } else {
    walker.Skip(IsLetter);
    const QStringView name = walker.Since(begin);
    if (std::none_of(kReferences.begin(), kReferences.end(), [name](const auto& known) {
          return name.compare(known.first, Qt::CaseInsensitive) == 0;
        }))
      return 0;
  }
  return walker.Take(u';') ? walker.At() : 0;
}

std::vector<AttributeText> AttributesOf(QStringView attributes) {
  std::vector<AttributeText> all;
  Walker walker(attributes);
  AttributeText attribute;
  while (SkipAttribute(walker, &attribute)) all.push_back(attribute);
  return all;
}

bool ScanPlainRow(QStringView text, qsizetype begin, qsizetype* end, std::vector<RowPart>* parts) {
  return RowScanner(text, begin, parts).Run(end);
}

QString PlainText(QStringView written) {
  QString text;
  text.reserve(written.size());
  while (!written.isEmpty()) {
    const qsizetype at = written.indexOf(u'&');
    text += written.left(at);
    if (at < 0) break;
    written = written.sliced(at);
    const qsizetype length = std::max<qsizetype>(1, ReferenceLength(written));
    const QStringView name = length == 1 ? QStringView() : written.sliced(1, length - 2);
    const auto known = std::find_if(kReferences.begin(), kReferences.end(),
                                    [name](const auto& each) { return each.first == name; });
    text += known == kReferences.end() ? QChar(u'&') : QChar(known->second);
    written = written.sliced(length);
  }
  return text;
}

}  // namespace kladez::viewer
