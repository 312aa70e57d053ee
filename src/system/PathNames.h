// The bytes by which the layer knows a path: on POSIX those of the file system, so that a name of
// any bytes stays itself; on Windows UTF-8, never a code page. Parts are parted by "/" everywhere.
#pragma once

#include <QByteArray>
#include <QString>

namespace kladez {

QByteArray EncodePath(const QString& path);
QString DecodePath(const QByteArray& path);

}  // namespace kladez
