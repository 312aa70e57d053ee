// Printing and writing PDF files with a person in front: asks, shows progress, lets stop, tells
// what went wrong.
#pragma once

#include <QElapsedTimer>
#include <QPrinter>
#include <QProgressDialog>
#include <functional>
#include <optional>
#include <vector>

#include "viewer/paper/PaperLayout.h"

namespace kladez::viewer {

// A window with a bar and "Отмена" that comes up when work takes long. Goes with the object.
class WorkProgress {
 public:
  // `text` says what is being done.
  WorkProgress(const QString& text, QWidget* parent);

  // Does the work, which tells the progress how far it is. False: a person pressed "Отмена".
  bool Run(const std::function<void(const Progress& progress)>& work);

 private:
  QProgressDialog dialog_;
};

// Asks where to write the PDF file of a page with this name; "" when the person thinks better of
// it.
QString AskPdfPath(const QString& title, QWidget* parent);

// Writes the file and tells if that failed. Gives whether it was written.
bool SavePdfFile(const PaperLayout& layout, const QString& title, const QString& path,
                 QWidget* parent);

// Lays the page out in the format that is proposed for it, and does the same.
bool SavePdfFile(std::shared_ptr<const Page> page, const QString& path, QWidget* parent);

// Prints `sheets` (from 0), `copies` times, and tells if that failed. Gives whether all were sent.
bool PrintSheets(const PaperLayout& layout, const QString& title, const std::vector<int>& sheets,
                 int copies, QPrinter& printer, QWidget* parent);

// The sheets that a person asks for, from 0: "1-3, 5"; all `count` of them when there is nothing.
// None of what is no such list.
std::optional<std::vector<int>> ParseSheets(const QString& text, int count);

}  // namespace kladez::viewer
