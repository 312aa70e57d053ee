#include "system/PathNames.h"

namespace kladez {

QByteArray EncodePath(const QString& path) { return path.toUtf8(); }

QString DecodePath(const QByteArray& path) { return QString::fromUtf8(path); }

}  // namespace kladez
