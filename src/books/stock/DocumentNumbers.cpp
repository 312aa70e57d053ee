#include "books/stock/DocumentNumbers.h"

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
  return {NumberedName(NumberAbove(file)) + extension, GeneralText(number + 1)};
}

}  // namespace kladez
