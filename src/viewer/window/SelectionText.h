// What is copied from a page, as a table program takes it.
#pragma once

#include <QString>
#include <QTextCursor>

#include "viewer/paper/PagePlan.h"

namespace kladez::viewer {

// The selected text, a line for each paragraph and each row; the cells of a row are parted by tabs.
QString PlainTextOf(const QTextCursor& selection);

// The same of a whole chunk of the page, without laying it out.
QString PlainTextOf(const PagePlan& plan, const Chunk& chunk);

}  // namespace kladez::viewer
