// From the file of a print-out to a Page: reads, decodes, parses and tidies the markup.
#pragma once

#include <QDir>
#include <functional>

#include "viewer/page/Page.h"
#include "viewer/page/Progress.h"

namespace kladez::viewer {

// Gives the picture of a plain file name, or a null image.
using PictureLoader = std::function<QImage(const QString& name)>;

// Reads the text of a page as the browsers did for which our print-outs are written. Scripts,
// links and styles of other programs have no effect; no text is lost. Reading does not stop at what
// `progress` answers.
Page ReadPage(const QString& text, const PictureLoader& load_picture,
              const Progress& progress = {});

// Reads `name` in `directory`; its pictures come from the same directory, by plain file name.
// Throws std::system_error with the system's reason when the file can't be read.
Page ReadPageFile(const QDir& directory, const QString& name, const Progress& progress = {});

// Finds the rows that repeat on each sheet, the rows that head a group, and the signature block.
// ReadPage does it.
void MarkPrintParts(Page& page);

}  // namespace kladez::viewer
