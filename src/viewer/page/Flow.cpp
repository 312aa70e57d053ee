#include "viewer/page/Flow.h"

#include <algorithm>

#include "viewer/page/Limits.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr QChar kBreak(QChar::LineSeparator);
constexpr int kTab = 8;

bool IsCollapsible(QChar c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

}  // namespace

int StyleIndex(Page& page, const TextStyle& style) {
  const auto found = std::find(page.styles.begin(), page.styles.end(), style);
  const auto index = found - page.styles.begin();
  if (found == page.styles.end()) {
    if (page.styles.size() == limits::kStyles) return 0;
    page.styles.push_back(style);
  }
  return static_cast<int>(index);
}

Run& Flow::RunFor(const Look& look) {
  if (paragraph_.runs.empty()) {
    paragraph_.align = look.align;
    paragraph_.keep_lines = look.preformatted;
    paragraph_.listed = look.listed;
  }
  const int style = StyleIndex(page_, look.style);
  if (paragraph_.runs.empty() || paragraph_.runs.back().style != style ||
      !paragraph_.runs.back().picture.isEmpty())
    paragraph_.runs.push_back({style, {}, {}});
  return paragraph_.runs.back();
}

// A long paragraph goes on in one that looks like it: neither is laid out at once, whatever it is.
void Flow::GoOnBelow() {
  EndParagraph(0);
  run_ = nullptr;
}

void Flow::AddLetter(QChar c, const Look& look) {
  if (run_ == nullptr) run_ = &RunFor(look);
  run_->text += c;
  ++letters_;
  word_ = c == u' ' && !look.preformatted ? 0 : word_ + 1;
  if (word_ < limits::kLettersOfWord) return;
  run_->text += kBreak;
  word_ = 0;
  if (letters_ > limits::kLettersOfParagraph) GoOnBelow();
}

void Flow::AddPreformatted(const QString& text, const Look& look) {
  for (const QChar c : text) {
    if (c == u'\n')
      AddBreak(look);
    else if (c == u'\t')
      for (int i = 0; i < kTab; ++i) AddLetter(u' ', look);
    else if (c != u'\r')
      AddLetter(c, look);
  }
}

void Flow::AddText(const QString& text, const Look& look) {
  run_ = nullptr;
  if (look.preformatted) {
    AddPreformatted(text, look);
    return;
  }
  bool at_blank = paragraph_.runs.empty();
  if (!at_blank && paragraph_.runs.back().picture.isEmpty()) {
    const QString& before = paragraph_.runs.back().text;
    at_blank = before.isEmpty() || before.back() == u' ' || before.back() == kBreak;
  }
  for (const QChar c : text) {
    if (!IsCollapsible(c)) {
      AddLetter(c, look);
      at_blank = false;
    } else if (!at_blank) {
      at_blank = true;
      if (letters_ > limits::kLettersOfParagraph)
        GoOnBelow();
      else
        AddLetter(u' ', look);
    }
  }
}

void Flow::TrimLine() {
  if (paragraph_.keep_lines || paragraph_.runs.empty() ||
      !paragraph_.runs.back().text.endsWith(u' '))
    return;
  paragraph_.runs.back().text.chop(1);
  if (paragraph_.runs.back().text.isEmpty() && paragraph_.runs.size() > 1)
    paragraph_.runs.pop_back();
}

void Flow::AddBreak(const Look& look) {
  TrimLine();
  run_ = nullptr;
  word_ = 0;
  if (++letters_ > limits::kLettersOfParagraph) {
    GoOnBelow();
    return;
  }
  if (!paragraph_.runs.empty()) {
    Run& last = paragraph_.runs.back();
    if (last.picture.isEmpty() && !last.text.isEmpty() && last.text.back() != kBreak) {
      // The height of a line comes from its words, not from the font in which it is broken.
      last.text += kBreak;
      return;
    }
  }
  RunFor(look).text += kBreak;
}

void Flow::AddPicture(const QString& name, const Look& look) {
  RunFor(look);
  paragraph_.runs.push_back({paragraph_.runs.back().style, {}, name});
}

double Flow::TakeMargin() {
  const double margin = is_cell_ && blocks_.empty() ? 0 : margin_;
  margin_ = 0;
  return margin;
}

void Flow::EndParagraph(double margin) {
  TrimLine();
  if (!paragraph_.runs.empty()) {
    // A break that ends a paragraph ends its last line and begins no other.
    if (QString& last = paragraph_.runs.back().text; last.endsWith(kBreak)) last.chop(1);
    paragraph_.space_before = TakeMargin();
    blocks_.emplace_back(std::move(paragraph_));
  }
  paragraph_ = {};
  letters_ = word_ = 0;
  margin_ = std::max(margin_, margin);
}

void Flow::AddTable(std::unique_ptr<Table> table) {
  EndParagraph(0);
  table->space_before = TakeMargin();
  if (table->space_before == 0 && !blocks_.empty()) {
    if (const auto* before = std::get_if<std::unique_ptr<Table>>(&blocks_.back())) {
      table->follows_table = true;
      table->shares_line = (*before)->border > 0 && (*before)->collapse;
    }
  }
  blocks_.emplace_back(std::move(table));
}

std::vector<Block> Flow::Take(const Look& look) {
  EndParagraph(0);
  if (blocks_.empty()) {
    Paragraph empty;
    empty.align = look.align;
    blocks_.emplace_back(std::move(empty));
  }
  return std::move(blocks_);
}

}  // namespace kladez::viewer
