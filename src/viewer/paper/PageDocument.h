// A chunk of a page as a rich text document, laid out for a screen or for paper. Lengths that go in
// and out are those of the layout: pixels at the given dots per inch.
#pragma once

#include <QPaintDevice>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextTable>
#include <memory>
#include <vector>

#include "viewer/paper/PagePlan.h"

namespace kladez::viewer {

// Tells a layout how many dots an inch has. Everything of the document scales with it, pictures and
// lines too, which is how the screen zooms. Nothing is painted on it.
class ResolutionDevice : public QPaintDevice {
 public:
  // A device that draws nothing, of so many dots per inch.
  explicit ResolutionDevice(int dpi) : dpi_(dpi) {}
  QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  int dpi_;
};

// What a page is laid out for.
struct Measure {
  int dpi = 96;
  double width = 0;       // dots that the columns of a table share
  double margin = 0;      // pixels at 96 dpi around the whole page
  double text_width = 0;  // dots of the columns and of the margins beside them
};

class PageDocument {
 public:
  // Builds the chunk with the number `chunk` and lays it out. `plan` has to stay.
  PageDocument(const PagePlan& plan, size_t chunk, const Measure& measure);

  // The document, and its height in dots of its resolution.
  QTextDocument* document() { return &document_; }
  const QTextDocument* document() const { return &document_; }
  double Height() const { return document_.size().height(); }

  // The blocks of the document in which a piece of the plan stands.
  int FirstBlock(size_t piece) const { return blocks_[piece - first_piece_].first; }
  int LastBlock(size_t piece) const { return blocks_[piece - first_piece_].last; }

  // The table in which a row of the plan stands.
  QTextTable* TableOf(size_t piece) const;

 private:
  struct Blocks {
    int first;
    int last;
  };

  void Fill(QTextCursor& cursor, const Chunk& chunk);
  void FillCell(QTextCursor& cursor, const std::vector<Block>& blocks);
  void AddParagraph(QTextCursor& cursor, const Paragraph& paragraph);
  void AddPart(QTextCursor& cursor, const Part& part);
  QTextTable* AddRows(QTextCursor& cursor, const Table& table, size_t begin, size_t end,
                      const QTextTableFormat& format);

  const PagePlan& plan_;
  Measure measure_;
  size_t first_piece_;
  ResolutionDevice device_;
  QTextDocument document_;
  std::vector<QTextCharFormat> formats_;
  std::vector<Blocks> blocks_;  // of each piece
};

}  // namespace kladez::viewer
