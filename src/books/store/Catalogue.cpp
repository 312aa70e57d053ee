#include "books/store/Catalogue.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>

#include "books/store/Errors.h"
#include "formats/CurrencyFile.h"
#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Two lines are never as long; a file that is was damaged, and no screen could show its name.
constexpr qsizetype kLargestDescriptor = 1 << 16;

// The number before the extension of a descriptor's name, 0 where there is none.
double NumberOfName(const QString& file) {
  return NumberOr(file.chopped(files::kDescriptorExtension.size()));
}

}  // namespace

std::vector<CatalogueEntry> ListDatabases(const DataDir& data) {
  std::vector<CatalogueEntry> entries;
  data.ForEachFile({}, files::kDescriptorExtension, [&](const DataDir::ListedFile& file) {
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

qint64 NumberAbove(double number) {
  constexpr double kMost = 1e15;  // beyond it, adding 1 means nothing any more
  return std::llround(std::clamp(number, -kMost, kMost) + 1);
}

qint64 NextDatabaseNumber(const DataDir& data) {
  const QStringList files = data.List({}, files::kDescriptorExtension);
  return files.isEmpty() ? 1 : NumberAbove(NumberOfName(files.constLast()));
}

qint64 FreeDatabaseNumber(const DataDir& data) {
  const auto is_taken = [&](qint64 number) {
    const QString name = NumberedName(number);
    const QString descriptor = name + files::kDescriptorExtension;
    return data.FileExists(name) || data.DirectoryExists(name) || data.FileExists(descriptor) ||
           data.DirectoryExists(descriptor);
  };
  qint64 number = NextDatabaseNumber(data);
  if (!is_taken(number)) return number;
  double highest = 0;
  for (const QString& file : data.List({}, files::kDescriptorExtension)) {
    highest = std::max(highest, NumberOfName(file));
  }
  for (number = NumberAbove(highest); is_taken(number);) ++number;
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

std::optional<CatalogueEntry> FindDemonstration(const DataDir& data, const Session& session) {
  std::vector<CatalogueEntry> entries;
  IgnoreErrors([&] { entries = ListDatabases(data); });
  for (const CatalogueEntry& entry : entries) {
    const QString& path = entry.descriptor.path;
    if (entry.descriptor.name == kDemonstrationName && IsPlainTreePath(path) &&
        data.DirectoryExists(path) && !IsInUse(data, session, entry)) {
      return entry;
    }
  }
  return std::nullopt;
}

int RowAtPosition(int position, int rows) {
  const int row = position > rows ? position - 2 : position - 1;
  return row >= 0 && row < rows ? row : rows > 0 ? 0 : -1;
}

int ImportRowAtPosition(int position, int rows) {
  const int row = position > rows ? rows - position - 1 : position - 1;
  return row >= 0 && row < rows ? row : rows > 0 ? 0 : -1;
}

QByteArray FirstFirmBytes() {
  QStringList firm(15, u"-"_s);
  firm.first() = u"Ваша фирма"_s;
  return EncodeLines(firm);
}

QString AddNewDatabase(SaveSet& save, qint64 number, const QString& name) {
  const QString base = NumberedName(number) + u'\\';
  save.Write(NumberedName(number) + files::kDescriptorExtension, WriteDescriptor({base, name}));
  save.MakeNewDirectory(base);
  for (const QStringView directory : files::kDirectories) save.MakeDirectory(base + directory);
  const QString warehouse = u"Главный склад"_s;
  save.Write(base + files::kMarks, {});
  save.Write(base + files::kWarehouses, EncodeLines({warehouse}));
  save.Write(base + files::kCurrency, WriteCurrency(RoubleCurrency()));
  AddNewWarehouse(save, base + warehouse);
  save.Write(base + files::kFirms, FirstFirmBytes());
  for (const QStringView file : {files::kClients, files::kSuppliers, files::kGoods}) {
    save.Write(base + file, {});
  }
  return base;
}

void AddNewWarehouse(SaveSet& save, const QString& path) {
  // Names that differ in letter case only are one directory: it must not be filled anew.
  save.MakeNewDirectory(path);
  for (const QStringView directory : files::kWarehouseDirectories) {
    save.MakeDirectory(path + u'\\' + directory);
  }
  save.Write(path + u'\\' + files::kPriceNames,
             EncodeLines({u"Розница"_s, u"Мелкий опт"_s, u"Опт"_s}));
  save.Write(path + u'\\' + files::kLedger, {});
  for (int number = 1; number <= 5; ++number) {
    save.Write(
        path + u'\\' + files::kPrices + u'\\' + NumberedName(number) + files::kPriceExtension, {});
  }
}

QString CreateDatabase(const DataDir& data, const QString& name) {
  SaveSet save(data, u"база «%1» создана"_s.arg(name));
  QString base = AddNewDatabase(save, FreeDatabaseNumber(data), name);
  save.Commit();
  return base;
}

void RenameDatabase(const DataDir& data, const CatalogueEntry& entry, const QString& name) {
  SaveSet save(data, u"база «%1» переименована"_s.arg(entry.descriptor.name));
  // Read anew: a descriptor that can't be read is not to lose its path.
  FileState file;
  const DatabaseDescriptor old = ReadDescriptor(ReadWithState(data, entry.file, file));
  save.Write(entry.file, WriteDescriptor({old.path, name}), file);
  save.Commit();
}

void DeleteDatabase(const DataDir& data, const CatalogueEntry& entry) {
  RequirePlainPath(data, entry);
  SaveSet save(data, u"база «%1» удалена"_s.arg(entry.descriptor.name));
  if (data.DirectoryExists(entry.descriptor.path)) save.DeleteTree(entry.descriptor.path);
  save.Delete(entry.file);
  save.Commit();
}

}  // namespace kladez
