// How a page is taken apart to be laid out: into pieces that no sheet cuts, and into chunks of
// them, each a document of its own, so that only what is shown or printed has to be laid out.
#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "formats/Progress.h"
#include "viewer/page/Page.h"
#include "viewer/paper/ColumnFit.h"

namespace kladez::viewer {

// A paragraph, or a row of a table that stands on the page.
struct Piece {
  int block = 0;              // in Page::blocks
  int row = -1;               // in that table; -1 for a paragraph
  int part = -1;              // in PagePlan::parts
  bool begins_stack = false;  // the first row of tables that follow each other directly
  bool heading = false;
  bool group = false;
  bool blank = false;         // a row with nothing to be read
  bool reaches_down = false;  // a cell of it goes on in the next row
  bool closing = false;       // the totals under the last list
  bool signature = false;     // and the block to be signed
};

// Rows of a table that are laid out in one go.
struct Part {
  int block = 0;
  size_t begin = 0;
  size_t end = 0;
  size_t stack = 0;
};

struct Chunk {
  size_t begin = 0;  // pieces
  size_t end = 0;
  size_t cells = 0;  // what it weighs
  double gap = 0;    // pixels at 96 dpi between the chunk before and this one
};

class PagePlan {
 public:
  // Takes the page apart; nothing is laid out yet. Throws WorkCancelled.
  explicit PagePlan(std::shared_ptr<const Page> page, const Progress& progress = {});

  // The page, and what it was taken apart into, in its order.
  const Page& page() const { return *page_; }
  const std::vector<Piece>& pieces() const { return pieces_; }
  const std::vector<Part>& parts() const { return parts_; }
  const std::vector<Chunk>& chunks() const { return chunks_; }
  const Table* TableOf(const Piece& piece) const;  // null for a paragraph
  // Of a piece that is one; the stack of tables that a part belongs to.
  const Paragraph& ParagraphOf(const Piece& piece) const;
  const TableStack& StackOf(const Part& part) const { return stacks_[part.stack]; }

  // The narrowest width, in pixels at 96 dpi, at which words and preformatted lines are whole and
  // tables can be read with ease.
  double ReadableWidth() const;

  // What the toolkit leaves out under a table, in pixels at 96 dpi: what a paragraph keeps from
  // what is above it, and the empty line with which one begins. 0 when no paragraph follows.
  double LostBelow(const Part& part) const;
  double LostUnderTable(const Paragraph& paragraph) const;

 private:
  void AddParagraph(int block);
  void AddTable(int block, const Table& table);
  void AddRows(const Part& part, const Table& table);
  void Divide();
  bool MayPart(const Piece& before, const Piece& after, size_t cells) const;
  double GapAbove(const Piece& before, const Piece& after) const;
  size_t WeightOf(const Piece& piece) const;

  std::shared_ptr<const Page> page_;
  std::vector<Piece> pieces_;
  std::vector<Part> parts_;
  std::vector<Chunk> chunks_;
  std::vector<TableStack> stacks_;
  double widest_paragraph_ = 0;  // pixels at 96 dpi
};

}  // namespace kladez::viewer
