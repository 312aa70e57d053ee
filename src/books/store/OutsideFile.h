// A file outside the books, where a person or a script wants it: a table that is taken along, a
// page.
#pragma once

#include <QByteArray>
#include <QString>

namespace kladez {

// Writes the file whole or not at all; what stood there stays until then. Throws filesystem_error.
void WriteOutside(const QString& path, const QByteArray& bytes);

}  // namespace kladez
