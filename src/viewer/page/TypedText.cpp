#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <vector>

#include "viewer/page/PageText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// Where a tag of our print-outs may stand, and what it may carry.
enum class TagKind { kHead, kRaw, kPlain, kWithAttributes };

TagKind KindOf(const QString& name, bool* known) {
  static const QHash<QString, TagKind> kinds = {{u"html"_s, TagKind::kHead},
                                                {u"head"_s, TagKind::kHead},
                                                {u"meta"_s, TagKind::kHead},
                                                {u"title"_s, TagKind::kHead},
                                                {u"body"_s, TagKind::kHead},
                                                {u"style"_s, TagKind::kRaw},
                                                {u"script"_s, TagKind::kRaw},
                                                {u"b"_s, TagKind::kPlain},
                                                {u"i"_s, TagKind::kPlain},
                                                {u"u"_s, TagKind::kPlain},
                                                {u"center"_s, TagKind::kPlain},
                                                {u"br"_s, TagKind::kWithAttributes},
                                                {u"p"_s, TagKind::kWithAttributes},
                                                {u"div"_s, TagKind::kWithAttributes},
                                                {u"font"_s, TagKind::kWithAttributes},
                                                {u"table"_s, TagKind::kWithAttributes},
                                                {u"thead"_s, TagKind::kWithAttributes},
                                                {u"tbody"_s, TagKind::kWithAttributes},
                                                {u"tr"_s, TagKind::kWithAttributes},
                                                {u"th"_s, TagKind::kWithAttributes},
                                                {u"td"_s, TagKind::kWithAttributes},
                                                {u"pre"_s, TagKind::kWithAttributes},
                                                {u"img"_s, TagKind::kWithAttributes}};
  const auto found = kinds.constFind(name);
  *known = found != kinds.constEnd();
  return *known ? *found : TagKind::kPlain;
}

const QRegularExpression& TagPattern() {
  static const QRegularExpression pattern(
      u"<(/?)([a-z]+)((?:\\s+[a-z-]+(?:\\s*=\\s*(?:\"[^\"<>]*\"|'[^'<>]*'|[^\\s\"'<>]+))?)*)\\s*/?>"_s,
      QRegularExpression::CaseInsensitiveOption);
  return pattern;
}

const QRegularExpression& EntityPattern() {
  static const QRegularExpression pattern(
      u"&(?:nbsp|amp|lt|gt|quot|#[0-9]{1,6}|#x[0-9a-f]{1,5});"_s,
      QRegularExpression::CaseInsensitiveOption);
  return pattern;
}

// No tag of a print-out is as long; it bounds the look ahead at each "<".
constexpr qsizetype kLongestTag = 1000;

// Walks over a page once and copies it, escaping what is not markup of ours.
class TypedTextEscaper {
 public:
  TypedTextEscaper(const QString& page, const Progress& progress)
      : page_(page), steps_(progress, static_cast<int>(page.size())) {
    out_.reserve(page.size() + page.size() / 8);
  }

  QString Run() {
    while (pos_ < page_.size()) {
      const QChar c = page_[pos_];
      steps_.Advance(static_cast<int>(pos_));
      if (c == u'<') {
        TakeTag();
      } else if (c == u'&') {
        TakeAmpersand();
      } else {
        out_ += c;
        ++pos_;
      }
    }
    CloseDeferredCentring();
    return out_;
  }

 private:
  void TakeTag() {
    const auto match = MatchAt(TagPattern(), pos_);
    bool known = false;
    const QString name = match.captured(2).toLower();
    const TagKind kind = KindOf(name, &known);
    const bool closes = match.hasMatch() && !match.capturedView(1).isEmpty();
    if (!known || !IsMarkup(match, name, kind, closes)) {
      out_ += u"&lt;"_s;
      ++pos_;
      return;
    }
    if (kind == TagKind::kRaw) {
      pos_ = page_.indexOf(u'>', RawEnd(name, pos_ + match.capturedLength())) + 1;
      return;
    }
    if (name == u"center"_s && closes && !tables_.empty()) {
      ++deferred_;
    } else {
      out_ += match.capturedView();
    }
    pos_ += match.capturedLength();
    Follow(name, closes);
  }

  bool IsMarkup(const QRegularExpressionMatch& match, const QString& name, TagKind kind,
                bool closes) const {
    if (kind == TagKind::kRaw) {
      return !in_body_ && !closes && RawEnd(name, pos_ + match.capturedLength()) >= 0;
    }
    if (in_title_) {
      return closes && name == u"title"_s;
    }
    if (kind == TagKind::kHead && in_body_) {
      return closes && (name == u"body"_s || name == u"html"_s);
    }
    if (name == u"title"_s && !closes) {
      return page_.indexOf(u"</title>"_s, pos_ + match.capturedLength(), Qt::CaseInsensitive) >= 0;
    }
    if (kind == TagKind::kPlain && !match.capturedView(3).isEmpty()) {
      return false;
    }
    if (kind != TagKind::kPlain || closes || name == u"center"_s) {
      return true;
    }
    // A bold behind a text is not ours: the firm is called so. Neither is one that no one closes
    // within its cell: there the goods is.
    return FollowsMarkup() && (tables_.empty() || !tables_.back() ||
                               IsClosedInCell(name, pos_ + match.capturedLength()));
  }

  bool FollowsMarkup() const {
    const QStringView before = QStringView(page_).first(pos_);
    return before.isEmpty() || before.back() == u'>' || before.back() == u'\n';
  }

  bool IsClosedInCell(const QString& name, qsizetype from) const {
    static const QSet<QString> borders = {u"td"_s, u"th"_s, u"tr"_s, u"table"_s, u"body"_s};
    while ((from = page_.indexOf(u'<', from)) >= 0) {
      const auto match = MatchAt(TagPattern(), from);
      const QString tag = match.captured(2).toLower();
      if (borders.contains(tag)) {
        return false;
      }
      if (tag == name && !match.capturedView(1).isEmpty()) {
        return true;
      }
      ++from;
    }
    return false;
  }

  // The match that begins at `from`; offsets in it count from there.
  QRegularExpressionMatch MatchAt(const QRegularExpression& pattern, qsizetype from) const {
    return pattern.match(QStringView(page_).mid(from, kLongestTag), 0,
                         QRegularExpression::NormalMatch,
                         QRegularExpression::AnchorAtOffsetMatchOption);
  }

  qsizetype RawEnd(const QString& name, qsizetype from) const {
    return page_.indexOf(u"</"_s + name + u'>', from, Qt::CaseInsensitive);
  }

  // Keeps count of the tables that are open, and of whether a cell of each is.
  void Follow(const QString& name, bool closes) {
    if (name == u"title"_s) {
      in_title_ = !closes;
      return;
    }
    static const QSet<QString> head = {u"html"_s, u"head"_s, u"meta"_s};
    in_body_ = in_body_ || !head.contains(name);
    if (name == u"table"_s) {
      FollowTable(closes);
    } else if (!tables_.empty() && (name == u"td"_s || name == u"th"_s)) {
      tables_.back() = !closes;
    } else if (!tables_.empty() && (name == u"tr"_s || name == u"tbody"_s)) {
      tables_.back() = false;
    }
  }

  void FollowTable(bool closes) {
    if (closes) {
      if (!tables_.empty()) {
        tables_.pop_back();
      }
      CloseDeferredCentring();
    } else if (tables_.empty() || tables_.back()) {
      tables_.push_back(false);
    }
  }

  void CloseDeferredCentring() {
    for (; deferred_ > 0; --deferred_) {
      out_ += u"</center>"_s;
    }
  }

  void TakeAmpersand() {
    const auto match = MatchAt(EntityPattern(), pos_);
    if (match.hasMatch()) {
      out_ += match.capturedView();
      pos_ += match.capturedLength();
    } else {
      out_ += u"&amp;"_s;
      ++pos_;
    }
  }

  const QString& page_;
  ProgressSteps steps_;
  QString out_;
  qsizetype pos_ = 0;
  bool in_body_ = false;
  bool in_title_ = false;
  int deferred_ = 0;
  std::vector<bool> tables_;
};

}  // namespace

QString EscapeTypedText(const QString& page, const Progress& progress) {
  return TypedTextEscaper(page, progress).Run();
}

}  // namespace kladez::viewer
