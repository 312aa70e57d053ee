// What is copied from a page, as a table program takes it.
#pragma once

#include <QString>
#include <QTextCursor>

namespace kladez::viewer {

// The selected text, a line for each paragraph and each row; the cells of a row are parted by tabs.
QString PlainTextOf(const QTextCursor& selection);

}  // namespace kladez::viewer
