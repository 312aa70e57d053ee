// Which page of the guide speaks of which window.
#pragma once

#include <QStringView>

class QWidget;

namespace kladez {

// The page of a window's object name, with the place in it where it has one
// ("documents.htm#lines"); empty for a window without a row.
QStringView HelpPageOf(QStringView window);

// The page of the window or child screen that a widget stands in: of the nearest one that has a
// row, else the first page of the guide.
QStringView HelpPageFor(const QWidget* widget);

}  // namespace kladez
