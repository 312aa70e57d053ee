// Walks the tree that the HTML parser made of a print-out and rebuilds it as a Page.
#pragma once

#include <gumbo.h>

#include <memory>

#include "viewer/page/Flow.h"
#include "viewer/page/Markup.h"
#include "viewer/page/PageReader.h"
#include "viewer/page/PageText.h"
#include "viewer/page/ProgressSteps.h"

namespace kladez::viewer {

class Normaliser {
 public:
  // `text` is the page and `escaped` what of it the parser was given; both have to stay.
  Normaliser(const QString& text, const EscapedPage& escaped, PictureLoader load_picture,
             const Progress& progress)
      : text_(text),
        escaped_(escaped),
        load_picture_(std::move(load_picture)),
        steps_(progress, static_cast<int>(text.size())),
        is_cut_(escaped.is_cut) {}

  // `family` is the face of the letters that no tag gives another.
  Page Read(const GumboNode& root, const QString& family);

 private:
  void ReadNode(const GumboNode& node, Flow& flow, const Flow::Look& look);
  void ReadChildren(const GumboNode& node, Flow& flow, const Flow::Look& look);
  void ReadElement(const GumboNode& node, Flow& flow, const Flow::Look& look);
  void ReadBlock(const GumboNode& node, Flow& flow, const Flow::Look& look);
  void ReadPicture(const GumboNode& node, Flow& flow, const Flow::Look& look);
  std::unique_ptr<Table> ReadTable(const GumboNode& node, const Flow::Look& look);
  void ReadRows(const GumboNode& node, const Flow::Look& look, Table& table);
  Row ReadRow(const GumboNode& node, const Flow::Look& look);
  Cell ReadCell(const GumboNode& node, const Flow::Look& look, Qt::Alignment vertical);
  Cell MakeCell(const Tag& tag, const Flow::Look& look, Qt::Alignment vertical,
                Flow::Look* inside) const;
  bool IsRunOfPlainRows(const GumboNode& node, std::pair<qsizetype, qsizetype>* run) const;
  void ReadPlainRows(qsizetype begin, qsizetype end, const Flow::Look& look, Table& table);
  Row ReadPlainRow(const std::vector<RowPart>& parts, const Flow::Look& look);
  void ReadPlainCell(const std::vector<RowPart>& parts, size_t* at, Flow& flow,
                     const Flow::Look& look);
  bool HasRoomFor(const Table& table);
  void BeginCell();
  void AddText(Flow& flow, const QString& text, const Flow::Look& look);

  const QString& text_;
  const EscapedPage& escaped_;
  Page page_;
  PictureLoader load_picture_;
  ProgressSteps steps_;
  bool is_cut_;
  int cell_depth_ = 0;
  qsizetype letters_ = 0;
  qsizetype letters_of_cell_ = 0;  // and of those in it
  qsizetype cells_ = 0;
};

}  // namespace kladez::viewer
