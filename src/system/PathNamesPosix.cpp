#include <QFile>

#include "system/PathNames.h"

namespace kladez {

QByteArray EncodePath(const QString& path) { return QFile::encodeName(path); }

QString DecodePath(const QByteArray& path) { return QFile::decodeName(path); }

}  // namespace kladez
