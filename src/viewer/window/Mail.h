// A page on its way to somebody: as a PDF file in a new letter of the desktop's mail program.
#pragma once

#include <memory>

#include "viewer/page/Page.h"

class QWidget;

namespace kladez::viewer {

// Writes the page to a PDF file in a folder of its own among the temporary ones, where only its
// owner can read it, and has the mail program open a letter with subject, text and that file. Where
// there is no such program, tells so, and where the file lies. Gives at once; the letter is the
// mail program's.
void MailPage(std::shared_ptr<const Page> page, QWidget* parent);

}  // namespace kladez::viewer
