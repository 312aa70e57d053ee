#include "books/stock/DocumentNumbers.h"

#include <algorithm>
#include <cmath>

#include "books/store/Catalogue.h"
#include "formats/Numbers.h"

namespace kladez {

NewDocumentNumbers NumbersForNew(const DataDir& data, DocumentKind kind, const QString& directory) {
  const QString& extension = FormatOf(kind).extension;
  const QStringList files = data.List(directory, extension);
  double file = 0;
  double number = 0;
  if (!files.isEmpty()) {
    const QString& last = files.constLast();
    file = NumberOr(last.chopped(extension.size()));
    number = ParseLenient(ReadDocumentHead(kind, data.Read(directory + u'\\' + last)).number);
  }
  constexpr double kMost = 1e15;  // beyond it, adding 1 means nothing any more
  return {NumberedName(std::llround(std::clamp(file, -kMost, kMost) + 1)) + extension,
          GeneralText(number + 1)};
}

}  // namespace kladez
