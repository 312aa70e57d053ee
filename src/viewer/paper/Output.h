// Where a laid-out page goes without a window: a printer, a PDF file, pictures of its sheets.
#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <memory>
#include <vector>

#include "viewer/paper/PaperLayout.h"

namespace kladez::viewer {

// Draws the sheets with the numbers `sheets` (from 0), in that order, a page of `device` each.
// Gives false when the device refused. Throws WorkCancelled.
bool DrawSheets(const PaperLayout& layout, const std::vector<int>& sheets,
                QPagedPaintDevice& device, QPainter& painter, const Progress& progress);

// Writes a laid-out page to a PDF file, whole or not at all: an existing file stays as it was when
// it throws: WorkCancelled, or std::system_error when the file can't be written.
void WritePdf(const PaperLayout& layout, const QString& title, const QString& path,
              const Progress& progress);

// The page as a PDF file in the format that is proposed for it. Throws like WritePdf.
void ExportPdf(std::shared_ptr<const Page> page, const QString& path);

// The sheets as PNG pictures `directory`/`name`-1.png and on; gives their paths. Throws
// std::system_error when one can't be written.
QStringList ExportSheetPictures(std::shared_ptr<const Page> page, const QString& directory,
                                const QString& name, int dpi);

// The name that a PDF of a page with this title gets: without what file systems do not take.
QString PdfName(const QString& title);

}  // namespace kladez::viewer
