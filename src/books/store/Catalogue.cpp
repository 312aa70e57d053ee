#include "books/store/Catalogue.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

#include "books/store/Errors.h"
#include "formats/CurrencyFile.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView kExtension = u".us";
// Two lines are never as long; a file that is was damaged, and no screen could show its name.
constexpr qsizetype kLargestDescriptor = 1 << 16;

}  // namespace

std::vector<CatalogueEntry> ListDatabases(const DataDir& data) {
  std::vector<CatalogueEntry> entries;
  data.ForEachFile({}, kExtension, [&](const DataDir::ListedFile& file) {
    const bool good = file.bytes && file.bytes->size() <= kLargestDescriptor;
    entries.push_back({file.name, good ? ReadDescriptor(*file.bytes) : DatabaseDescriptor{}});
    return true;
  });
  return entries;
}

QString NumberedName(qint64 number) {
  const QString digits = u"%1"_s.arg(std::abs(number), 4, 10, QLatin1Char('0'));
  return number < 0 ? QString(u'-' + digits) : digits;
}

int NextDatabaseNumber(const DataDir& data) {
  const QStringList files = data.List({}, kExtension);
  if (files.isEmpty()) return 1;
  const double last = NumberOr(files.constLast().chopped(kExtension.size()));
  return std::fabs(last) < 1e9 ? static_cast<int>(last) + 1 : 1;
}

int FreeDatabaseNumber(const DataDir& data) {
  const int number = NextDatabaseNumber(data);
  const QString name = NumberedName(number);
  for (const QString& path : {name, QString(name + kExtension)}) {
    if (data.FileExists(path) || data.DirectoryExists(path)) {
      ThrowFileError(u"Не удалось создать базу"_s, path, EEXIST);
    }
  }
  return number;
}

void RequirePlainPath(const DataDir& data, const CatalogueEntry& entry) {
  const QString& path = entry.descriptor.path;
  int reason = IsPlainTreePath(path) ? 0 : EINVAL;
  try {
    if (reason == 0) data.Resolve(path);
  } catch (const std::filesystem::filesystem_error& error) {
    reason = error.code().value();
  }
  if (reason == 0) return;
  ThrowFileError(u"В описании базы "_s + entry.file +
                     u" указан путь не к каталогу рядом с ним, работать с ней нельзя"_s,
                 path, reason);
}

bool IsInUse(const DataDir& data, const Session& session, const CatalogueEntry& entry) {
  if (!session.IsOpen()) return false;
  bool same = entry.descriptor.path == session.base_path;
  IgnoreErrors([&] {
    same = same || data.Resolve(entry.descriptor.path) == data.Resolve(session.base_path);
  });
  return same;
}

int RowAtPosition(int position, int rows) {
  const int row = position > rows ? position - 2 : position - 1;
  return row >= 0 && row < rows ? row : rows > 0 ? 0 : -1;
}

int ImportRowAtPosition(int position, int rows) {
  const int row = position > rows ? rows - position - 1 : position - 1;
  return row >= 0 && row < rows ? row : rows > 0 ? 0 : -1;
}

QString AddNewDatabase(SaveSet& save, int number, const QString& name) {
  const QString base = NumberedName(number) + u'\\';
  save.Write(NumberedName(number) + kExtension, WriteDescriptor({base, name}));
  save.MakeNewDirectory(base);
  for (const char16_t* directory : {u"KASS", u"KASS\\PRH", u"KASS\\UHD", u"SPR", u"ВНПЕР"}) {
    save.MakeDirectory(base + QStringView(directory));
  }
  const QString warehouse = u"Главный склад"_s;
  save.Write(base + u"marked", {});
  save.Write(base + u"склад.usd", EncodeLines({warehouse}));
  save.Write(base + u"currency.usd", WriteCurrency(RoubleCurrency()));
  AddNewWarehouse(save, base + warehouse);
  QStringList firm(15, u"-"_s);
  firm.first() = u"Ваша фирма"_s;
  save.Write(base + u"SPR\\firma.spr", EncodeLines(firm));
  for (const char16_t* file : {u"SPR\\klient.spr", u"SPR\\post.spr", u"SPR\\товар.spr"}) {
    save.Write(base + QStringView(file), {});
  }
  return base;
}

void AddNewWarehouse(SaveSet& save, const QString& path) {
  // Names that differ in letter case only are one directory: it must not be filled anew.
  save.MakeNewDirectory(path);
  for (const char16_t* directory : {u"\\OPR", u"\\PRH", u"\\PRICE", u"\\UHD"}) {
    save.MakeDirectory(path + QStringView(directory));
  }
  save.Write(path + u"\\price.usd", EncodeLines({u"Розница"_s, u"Мелкий опт"_s, u"Опт"_s}));
  save.Write(path + u"\\товар.usl", {});
  for (int number = 1; number <= 5; ++number) {
    save.Write(path + u"\\PRICE\\" + NumberedName(number) + u".prc", {});
  }
}

QString CreateDatabase(const DataDir& data, const QString& name) {
  SaveSet save(data);
  QString base = AddNewDatabase(save, FreeDatabaseNumber(data), name);
  save.Commit();
  return base;
}

void RenameDatabase(const DataDir& data, const CatalogueEntry& entry, const QString& name) {
  SaveSet save(data);
  // Read anew: a descriptor that can't be read is not to lose its path.
  FileState file;
  const DatabaseDescriptor old = ReadDescriptor(ReadWithState(data, entry.file, file));
  save.Write(entry.file, WriteDescriptor({old.path, name}), file);
  save.Commit();
}

void DeleteDatabase(const DataDir& data, const CatalogueEntry& entry) {
  RequirePlainPath(data, entry);
  SaveSet save(data);
  if (data.DirectoryExists(entry.descriptor.path)) save.DeleteTree(entry.descriptor.path);
  save.Delete(entry.file);
  save.Commit();
}

QString DirectorPassword(const DataDir& data) {
  const QByteArray bytes = data.ReadIfAny(u"bases.psw"_s).value_or(QByteArray());
  const QString line = LineReader(bytes).Next();
  return line.left(line.indexOf(u'\n'));
}

}  // namespace kladez
