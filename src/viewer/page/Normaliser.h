// Walks the tree that the HTML parser made of a print-out and rebuilds it as a Page.
#pragma once

#include <gumbo.h>

#include <memory>

#include "viewer/page/Flow.h"
#include "viewer/page/PageReader.h"

namespace kladez::viewer {

class Normaliser {
 public:
  // `length`: how many bytes the parser was given, of which `progress` is told.
  Normaliser(PictureLoader load_picture, const Progress& progress, int length)
      : load_picture_(std::move(load_picture)), steps_(progress, length) {}

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

  Page page_;
  PictureLoader load_picture_;
  ProgressSteps steps_;
};

}  // namespace kladez::viewer
