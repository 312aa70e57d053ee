// A page laid out for paper: its sheets, as preview, printer, PDF and pictures draw them.
#pragma once

#include <QPainter>
#include <memory>
#include <vector>

#include "formats/Progress.h"
#include "viewer/paper/PageStrip.h"
#include "viewer/paper/PaperFormat.h"
#include "viewer/paper/Sheets.h"

namespace kladez::viewer {

class PaperLayout {
 public:
  // Takes the page apart; there are no sheets before LayOut. Throws WorkCancelled.
  explicit PaperLayout(std::shared_ptr<const Page> page, const Progress& progress = {});

  // Lays the page out anew. Throws WorkCancelled: then there are no sheets.
  void LayOut(const PaperFormat& format, const Progress& progress);

  // The format of the last LayOut, and the sheets that it gave.
  const PaperFormat& format() const { return format_; }
  int SheetCount() const;

  // How much smaller than written the page is on paper: 1 is its own size.
  double Scale() const { return scale_; }

  // Draws a sheet, counted from 0, with its number in the bottom margin. The painter's origin is
  // the corner of the paper, a unit of it is 1/`dpi` inch.
  void Draw(QPainter& painter, int sheet, double dpi) const;

  // `format`, turned to landscape when the page would have to shrink too much in portrait.
  PaperFormat Propose(const PaperFormat& format) const;

 private:
  // Where a piece stands in the strip.
  struct Place {
    double top = 0;
    double bottom = 0;
    std::vector<Slice> lines;  // of a paragraph, or of a row that may have to be cut
    std::vector<bool> blanks;  // of a paragraph: which of its lines say nothing
  };

  static int PaperDpi();

  void PlacePieces(double height, const Progress& progress);
  Place PlaceLines(const PageDocument& document, size_t piece) const;
  Place PlaceRow(const PageDocument& document, size_t piece, double height) const;
  void NoteEdges(const PageDocument& document, size_t piece);
  std::vector<Unit> Units(double height) const;
  bool IsClosingShort(double height) const;
  bool IsHeld(const Piece& piece) const;
  bool StaysWithNext(size_t index) const;
  void AddLines(size_t index, std::vector<Unit>& units) const;
  void AddRow(size_t index, double height, std::vector<Unit>& units) const;
  void DivideAcross(double layout_width, double paper_width);
  void DrawSlice(QPainter& painter, const Slice& slice, const Slice& across) const;
  void DrawNumber(QPainter& painter, int sheet, double dpi) const;

  std::unique_ptr<PageStrip> strip_;
  PaperFormat format_;
  double scale_ = 1;
  bool is_closing_short_ = false;
  std::vector<Place> places_;  // of each piece
  std::vector<double> edges_;  // the left ones of the columns of the row that has most of them
  std::vector<Sheet> sheets_;
  std::vector<Slice> across_;  // what of the width a sheet shows; more than one without fit_width
};

}  // namespace kladez::viewer
