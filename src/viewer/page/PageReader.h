// From the file of a print-out, or of a page of the user guide, to a Page: reads, decodes, parses
// and tidies the markup.
#pragma once

#include <QDir>
#include <functional>

#include "formats/Progress.h"
#include "viewer/page/Page.h"

namespace kladez::viewer {

// A print-out holds what people typed, names pictures beside it and has no links. A page of the
// guide is sound markup; it links to the pages beside it and shows pictures from below its folder.
enum class PageKind { kPrintOut, kGuide };

// What stands at the end of a page of which only the beginning is shown.
inline constexpr char16_t kCutText[] =
    u"Дальше страница не показана: она слишком велика или повреждена.";

// Gives the picture that a page names, or a null image.
using PictureLoader = std::function<QImage(const QString& name)>;

// Reads the text of a page as the browsers did for which our print-outs are written. Scripts,
// links and styles of other programs have no effect; no text is lost. Throws
// WorkCancelled. Of a page larger than any print-out only the beginning is read, with kCutText
// behind it.
Page ReadPage(const QString& text, const PictureLoader& load_picture, const Progress& progress = {},
              PageKind kind = PageKind::kPrintOut);

// Reads `name` in `directory`. Nothing outside that directory is read, whatever the page names.
// Throws std::system_error with the system's reason when the file can't be read.
Page ReadPageFile(const QDir& directory, const QString& name, const Progress& progress = {},
                  PageKind kind = PageKind::kPrintOut);

// Finds the rows that repeat on each sheet, the rows that head a group, and the signature block.
// ReadPage does it.
void MarkPrintParts(Page& page);

}  // namespace kladez::viewer
