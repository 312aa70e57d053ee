#include "formats/Ordering.h"

namespace kladez {

QString FoldCase(QStringView name) { return name.toString().toUpper(); }

QString OrderKey(QStringView name) {
  QString key = FoldCase(name);
  // U+0401 stands before all other letters in the code; here it follows U+0415 at once.
  return key.replace(QChar(0x0401), QString(QChar(0x0415)) + QChar(0xFFFF));
}

}  // namespace kladez
