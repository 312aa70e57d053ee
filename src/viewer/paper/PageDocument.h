// A Page as a rich text document, ready to be laid out for a screen or for paper. Lengths that go
// in and out are those of the layout: pixels at the given dots per inch.
#pragma once

#include <QPaintDevice>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextTable>
#include <memory>
#include <vector>

#include "viewer/page/Page.h"
#include "viewer/page/Progress.h"
#include "viewer/paper/ColumnFit.h"

namespace kladez::viewer {

// Tells a layout how many dots an inch has. Everything of the document scales with it, pictures and
// lines too, which is how the screen zooms. Nothing is painted on it.
class ResolutionDevice : public QPaintDevice {
 public:
  explicit ResolutionDevice(int dpi) : dpi_(dpi) {}
  QPaintEngine* paintEngine() const override { return nullptr; }
  int dpi() const { return dpi_; }

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  int dpi_;
};

class PageDocument {
 public:
  // What a sheet must not cut: a paragraph's line, or a row of a table that stands on the page.
  struct Piece {
    int first_block = 0;  // block numbers in the document
    int last_block = 0;
    QTextTable* table = nullptr;  // null for a paragraph
    int row = 0;                  // in that table
    bool begins_stack = false;    // the first row of tables that follow each other directly
    bool heading = false;
    bool group = false;
    bool blank = false;  // a row with nothing to be read
    // Of a row, in pixels at 96 dpi: the line above that it shares with the row before, and what
    // lies between its edges and its first and last block.
    double line_above = 0;
    double inset_top = 0;
    double inset_bottom = 0;
    bool reaches_down = false;  // a cell of it goes on in the next row
    bool closing = false;       // the totals under the last list
    bool signature = false;     // and the block to be signed
  };

  // Builds the document; it does not stop at what `progress` answers.
  explicit PageDocument(std::shared_ptr<const Page> page, const Progress& progress = {});

  QTextDocument* document() { return &document_; }
  const Page& page() const { return *page_; }
  const std::vector<Piece>& pieces() const { return pieces_; }

  // Lets the layout count `dpi` dots to the inch from now on.
  void SetResolution(int dpi);

  // Shares a width among the columns so that tables that follow each other have theirs in line.
  // To be called before the document is laid out at `width`.
  void FitColumns(double width);

  // The narrowest width, in pixels at 96 dpi, at which words and preformatted lines are whole and
  // tables can be read with ease.
  double ReadableWidth() const;

 private:
  void Fill(QTextCursor& cursor, const std::vector<Block>& blocks, bool on_page);
  void AddParagraph(QTextCursor& cursor, const Paragraph& paragraph);
  QTextTable* AddTable(QTextCursor& cursor, const Table& table, bool on_page);
  double LostBelowTable(const Paragraph& paragraph) const;
  QTextTable* AddRows(QTextCursor& cursor, const Table& table, size_t begin, size_t end);
  void NoteParagraph(const QTextCursor& cursor, const Paragraph& paragraph);
  void NoteRows(const Table& table, size_t begin, size_t end, QTextTable* made);
  void MakeFormats();

  std::shared_ptr<const Page> page_;
  QTextDocument document_;
  std::unique_ptr<ResolutionDevice> device_;
  std::vector<QTextCharFormat> formats_;
  std::vector<Piece> pieces_;
  std::vector<TableStack> stacks_;
  double widest_paragraph_ = 0;  // pixels at 96 dpi
  ProgressSteps steps_;
  int rows_made_ = 0;
  bool in_closing_ = false;
  bool in_signature_ = false;
};

}  // namespace kladez::viewer
