#include "cli/OpenedBooks.h"

#include <QStandardPaths>

#include "books/store/Catalogue.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

CatalogueEntry Meant(const DataDir& data, const QString& base) {
  std::vector<CatalogueEntry> entries = ListDatabases(data);
  QStringList names;
  for (const CatalogueEntry& entry : entries) {
    names << entry.descriptor.path.chopped(1) + u" «"_s + entry.descriptor.name + u'»';
  }
  std::erase_if(entries, [&](const CatalogueEntry& entry) {
    return !base.isEmpty() && entry.descriptor.path != base + u'\\' &&
           entry.descriptor.name != base;
  });
  if (entries.size() != 1) {
    throw WrongWords(u"Какая база? Назовите её в --base: "_s + names.join(u", "_s));
  }
  RequirePlainPath(data, entries[0]);
  return entries[0];
}

}  // namespace

QString DataDirectory(Words& words) {
  const QString given = words.TakeValue(u"--data"_s);
  return !given.isEmpty()
             ? given
             : QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/kladez"_s;
}

OpenedBooks::OpenedBooks(Words& words) : data(DataDirectory(words)) {
  session.chosen_base = Meant(data, words.TakeValue(u"--base"_s)).descriptor.path;
  OpenDatabase(session, data);
}

}  // namespace kladez
