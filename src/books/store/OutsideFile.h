// A file outside the books, where a person or a script wants it: a table that is taken along or
// brought in, a page.
#pragma once

#include <QByteArray>
#include <QString>

namespace kladez {

// Writes the file whole or not at all; what stood there stays until then. Throws filesystem_error.
void WriteOutside(const QString& path, const QByteArray& bytes);

// The bytes of a plain file of at most so many. Throws filesystem_error, for a pipe or a directory
// too.
QByteArray ReadOutside(const QString& path, qint64 most);

}  // namespace kladez
