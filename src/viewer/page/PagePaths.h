// What a page may name: files in its own folder and in the folders below it, and nothing else.
#pragma once

#include <QDir>
#include <QString>

namespace kladez::viewer {

// The file that `reference`, such as "first.htm" or "pictures/Main.png", names from a page in
// `folder`. "" when there is none, and when it lies elsewhere: by "..", by an absolute path, by an
// address, or by a link of the file system that leads out.
QString PathWithin(const QDir& folder, const QString& reference);

// Whether a click on `reference` can lead to a page beside the one that names it.
bool NamesPage(const QString& reference);

}  // namespace kladez::viewer
