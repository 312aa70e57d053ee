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

QString FreeDocumentFile(const DataDir& data, DocumentKind kind, const QString& directory) {
  const QString& extension = FormatOf(kind).extension;
  const QStringList files = data.List(directory, extension);
  double highest = 0;
  for (const QString& file : files) {
    highest = std::max(highest, NumberOr(file.chopped(extension.size())));
  }
  QString free = NumberedName(NumberAbove(highest)) + extension;
  // Beyond the numbers that can be told apart a name may be there all the same.
  while (data.FileExists(directory + u'\\' + free)) free.prepend(u'1');
  return free;
}

QString FileNumberText(const QString& file) {
  return GeneralText(NumberOr(file.section(u'.', 0, 0)));
}

}  // namespace kladez
