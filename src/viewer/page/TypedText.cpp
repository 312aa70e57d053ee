#include <QHash>
#include <QSet>
#include <algorithm>
#include <utility>
#include <vector>

#include "viewer/page/Limits.h"
#include "viewer/page/MarkupScan.h"
#include "viewer/page/PageText.h"
#include "viewer/page/ProgressSteps.h"

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

// How far the end of a bold is looked for.
constexpr qsizetype kLongestBold = 4000;

// Walks over a page once and copies it, escaping what is not markup of ours.
class TypedTextEscaper {
 public:
  TypedTextEscaper(const QString& page, bool takes_rows, const Progress& progress)
      : page_(page), takes_rows_(takes_rows), steps_(progress, static_cast<int>(page.size())) {}

  EscapedPage Run() {
    while (pos_ < page_.size()) {
      const QChar c = page_[pos_];
      steps_.Advance(static_cast<int>(pos_));
      if (c == u'<') {
        if (!in_rows_ || !TakePlainRows()) TakeTag();
      } else if (c == u'&') {
        TakeAmpersand();
      } else {
        in_rows_ = in_rows_ && c.isSpace();
        out_.markup += c;
        ++pos_;
      }
      if (out_.markup.size() > limits::kMarkup || tags_ > limits::kTags) {
        out_.is_cut = true;
        break;
      }
    }
    CloseDeferredCentring();
    return std::move(out_);
  }

 private:
  // Rows that stand where a row of a table begins. They are left out here; a row with the attribute
  // "0", which no page can have, stands for them.
  bool TakePlainRows() {
    const qsizetype begin = pos_;
    qsizetype end = pos_;
    while (ScanPlainRow(page_, pos_, &end, nullptr)) {
      pos_ = end;
      steps_.Advance(static_cast<int>(pos_));
    }
    if (pos_ == begin) return false;
    out_.markup += u"<tr 0=%1></tr>"_s.arg(out_.rows.size());
    out_.rows.push_back({begin, pos_});
    ++tags_;
    return true;
  }

  void TakeTag() {
    const auto tag = ScanTag(QStringView(page_).sliced(pos_));
    bool known = false;
    const QString name = tag ? tag->name.toString().toLower() : QString();
    const TagKind kind = KindOf(name, &known);
    if (!known || !IsMarkup(*tag, name, kind)) {
      in_rows_ = false;
      out_.markup += u"&lt;"_s;
      ++pos_;
      return;
    }
    const QStringView written = QStringView(page_).sliced(pos_, tag->length);
    ++tags_;
    if (kind == TagKind::kRaw) {
      pos_ = page_.indexOf(u'>', RawEnd(name, pos_ + tag->length)) + 1;
      return;
    }
    pos_ += tag->length;
    if (!Admits(name, tag->closes)) return;
    if (name == u"center"_s && tag->closes && !tables_.empty())
      ++deferred_;
    else
      out_.markup += written;
    Follow(name, tag->closes);
    FollowRows(name, tag->closes);
  }

  // Whether a tag is not deeper in others than the parser, and who lays out, can bear.
  bool Admits(const QString& name, bool closes) {
    static const QSet<QString> formats = {u"b"_s, u"i"_s, u"u"_s, u"font"_s};
    static const QSet<QString> blocks = {u"div"_s, u"center"_s, u"pre"_s};
    static const QSet<QString> grid = {u"tr"_s, u"td"_s, u"th"_s, u"tbody"_s, u"thead"_s};
    const bool in_cell = !tables_.empty() && tables_.back();
    if (name == u"table"_s) return AdmitsTable(closes, in_cell);
    if (grid.contains(name)) {
      formats_in_cell_ = 0;
      return left_out_tables_ == 0;
    }
    if (!tables_.empty() && !in_cell && name != u"center"_s && ++stray_ > limits::kStrayTags)
      return false;
    if (formats.contains(name))
      return Count(in_cell ? formats_in_cell_ : formats_, limits::kFormats, closes);
    return !blocks.contains(name) || Count(blocks_, limits::kBlocks, closes);
  }

  bool AdmitsTable(bool closes, bool in_cell) {
    formats_in_cell_ = 0;
    if (closes && left_out_tables_ > 0) {
      --left_out_tables_;
      return false;
    }
    if (closes || tables_.size() < limits::kTables || !in_cell) return true;
    ++left_out_tables_;
    return false;
  }

  static bool Count(int& open, int most, bool closes) {
    if (closes) {
      open = std::max(0, open - 1);
      return true;
    }
    return open < most && ++open > 0;
  }

  // Plain rows are looked for behind a table's tag, and behind a row that holds no table.
  void FollowRows(const QString& name, bool closes) {
    static const QSet<QString> borders = {u"table"_s, u"thead"_s, u"tbody"_s, u"body"_s, u"html"_s};
    const bool ends_row = in_other_row_ && name == u"tr"_s && closes;
    const bool begins_row = in_rows_ && name == u"tr"_s && !closes;
    const bool opens_table = name == u"table"_s && !closes;
    in_rows_ = takes_rows_ && (opens_table || ends_row);
    if (begins_row) in_other_row_ = true;
    if (ends_row || borders.contains(name)) in_other_row_ = false;
  }

  bool IsMarkup(const TagText& tag, const QString& name, TagKind kind) {
    if (kind == TagKind::kRaw)
      return !in_body_ && !tag.closes && RawEnd(name, pos_ + tag.length) >= 0;
    if (in_title_) return tag.closes && name == u"title"_s;
    if (kind == TagKind::kHead && in_body_)
      return tag.closes && (name == u"body"_s || name == u"html"_s);
    if (name == u"title"_s && !tag.closes) return RawEnd(name, pos_ + tag.length) >= 0;
    if (kind == TagKind::kPlain && !tag.attributes.isEmpty()) return false;
    if (kind != TagKind::kPlain || tag.closes || name == u"center"_s) return true;
    // A bold behind a text is not ours: the firm is called so. Neither is one that no one closes
    // within its cell: there the goods is.
    return FollowsMarkup() &&
           (tables_.empty() || !tables_.back() || IsClosedInCell(name, pos_ + tag.length));
  }

  bool FollowsMarkup() const {
    const QStringView before = QStringView(page_).first(pos_);
    return before.isEmpty() || before.back() == u'>' || before.back() == u'\n';
  }

  bool IsClosedInCell(const QString& name, qsizetype from) const {
    static const QSet<QString> borders = {u"td"_s, u"th"_s, u"tr"_s, u"table"_s, u"body"_s};
    const QStringView cell = QStringView(page_).sliced(from).left(kLongestBold);
    for (qsizetype at = cell.indexOf(u'<'); at >= 0; at = cell.indexOf(u'<', at + 1)) {
      const auto tag = ScanTag(cell.sliced(at));
      if (!tag) continue;
      if (borders.contains(tag->name.toString().toLower())) return false;
      if (tag->Is(name) && tag->closes) return true;
    }
    return false;
  }

  // Where an element of the head ends; -1 when it does not, which is looked for once.
  qsizetype RawEnd(const QString& name, qsizetype from) {
    if (endless_.contains(name)) return -1;
    const qsizetype end = page_.indexOf(u"</"_s + name + u'>', from, Qt::CaseInsensitive);
    if (end < 0) endless_.insert(name);
    return end;
  }

  // Keeps count of the tables that are open, and of whether a cell of each is.
  void Follow(const QString& name, bool closes) {
    if (name == u"title"_s) {
      in_title_ = !closes;
      return;
    }
    static const QSet<QString> head = {u"html"_s, u"head"_s, u"meta"_s};
    in_body_ = in_body_ || !head.contains(name);
    if (name == u"table"_s)
      FollowTable(closes);
    else if (!tables_.empty() && (name == u"td"_s || name == u"th"_s))
      tables_.back() = !closes;
    else if (!tables_.empty() && (name == u"tr"_s || name == u"tbody"_s))
      tables_.back() = false;
  }

  void FollowTable(bool closes) {
    if (closes) {
      if (!tables_.empty()) tables_.pop_back();
      CloseDeferredCentring();
    } else if (tables_.empty() || tables_.back()) {
      tables_.push_back(false);
    }
  }

  void CloseDeferredCentring() {
    for (; deferred_ > 0; --deferred_) out_.markup += u"</center>"_s;
  }

  void TakeAmpersand() {
    in_rows_ = false;
    const qsizetype length = ReferenceLength(QStringView(page_).sliced(pos_));
    if (length > 0) {
      out_.markup += QStringView(page_).sliced(pos_, length);
      pos_ += length;
    } else {
      out_.markup += u"&amp;"_s;
      ++pos_;
    }
  }

  const QString& page_;
  bool takes_rows_;
  ProgressSteps steps_;
  EscapedPage out_;
  qsizetype pos_ = 0;
  int tags_ = 0;
  bool in_body_ = false;
  bool in_title_ = false;
  bool in_rows_ = false;       // a row may begin here
  bool in_other_row_ = false;  // in one that is not plain and that began where one may
  int deferred_ = 0;
  int formats_ = 0;  // tags that are open
  int formats_in_cell_ = 0;
  int blocks_ = 0;
  int stray_ = 0;
  int left_out_tables_ = 0;
  std::vector<bool> tables_;
  QSet<QString> endless_;
};

}  // namespace

EscapedPage EscapePage(const QString& page, const Progress& progress) {
  return TypedTextEscaper(page, true, progress).Run();
}

QString EscapeTypedText(const QString& page) {
  return TypedTextEscaper(page, false, {}).Run().markup;
}

}  // namespace kladez::viewer
