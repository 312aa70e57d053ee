// Gathers what stands one below the other in a page or a cell: text runs become paragraphs, blanks
// collapse, margins between neighbours are the larger of both.
#pragma once

#include <vector>

#include "viewer/page/Page.h"

namespace kladez::viewer {

class Flow {
 public:
  // How the text that is added next looks.
  struct Look {
    TextStyle style;
    Qt::Alignment align = Qt::AlignLeft;
    bool preformatted = false;
    bool listed = false;
  };

  // `is_cell`: the outer margins of the content fall away, as they do in a cell.
  Flow(Page& page, bool is_cell) : page_(page), is_cell_(is_cell) {}

  // Each goes behind what is there: into the paragraph that is open, a table on its own.
  void AddText(const QString& text, const Look& look);
  void AddBreak(const Look& look);
  void AddPicture(const QString& name, const Look& look);
  void AddTable(std::unique_ptr<Table> table);

  // Ends the paragraph at hand; the next block keeps at least `margin` pixels from it.
  void EndParagraph(double margin);

  // The blocks so far. With nothing in them, one empty paragraph in the style last seen.
  std::vector<Block> Take(const Look& look);

 private:
  Run& RunFor(const Look& look);
  void AddPreformatted(const QString& text, const Look& look);
  void AddLetter(QChar c, const Look& look);
  void GoOnBelow();
  void TrimLine();
  double TakeMargin();

  Page& page_;
  bool is_cell_;
  std::vector<Block> blocks_;
  Paragraph paragraph_;
  double margin_ = 0;
  Run* run_ = nullptr;     // what the text at hand is added to; null when that has to be found
  qsizetype letters_ = 0;  // of the paragraph
  qsizetype word_ = 0;     // letters since the last blank
};

// The index of `style` among the styles of the page, which gets it when it is new.
int StyleIndex(Page& page, const TextStyle& style);

}  // namespace kladez::viewer
