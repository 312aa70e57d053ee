#include "books/copies/UnpackedCopy.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <cerrno>

#include "books/copies/Archive.h"
#include "books/stock/DocumentBook.h"
#include "books/stock/DocumentScan.h"
#include "books/store/Backup.h"
#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"
#include "system/PathNames.h"
#include "system/Process.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kLookPrefix = u"look-"_s;

void CheckUnpacked(int error, const QByteArray& path) {
  if (error != 0) {
    ThrowFileError(u"Не удалось распаковать копию базы"_s, DecodePath(path), error);
  }
}

// A program that was killed has left what it looked into.
void RemoveStale(const QString& state) {
  for (const QString& name : QDir(state).entryList({kLookPrefix + u'*'}, QDir::Dirs)) {
    const qint64 owner = name.section(u'-', 1, 1).toLongLong();
    if (!syscalls::IsRunning(owner)) {
      syscalls::RemoveTree(EncodePath(state + u'/' + name));
    }
  }
}

QByteArray NewPlace() {
  static int number = 0;
  const QString state = DecodePath(StateDirectory());
  RemoveStale(state);
  return EncodePath(u"%1/%2%3-%4"_s.arg(state, kLookPrefix,
                                        QString::number(QCoreApplication::applicationPid()),
                                        QString::number(++number)));
}

void WriteUnpacked(const QByteArray& path, const ArchivedFile& file) {
  syscalls::NewFile out(path);
  CheckUnpacked(out.Create(0600), path);
  CheckUnpacked(out.Write(file.bytes), path);
  out.SetTime(file.modified);
}

QString PresentPath(const DataDir& data, const UnpackedCopy& copy, const QString& inside) {
  if (NameOfTarget(data, copy).isEmpty()) {
    ThrowFileError(u"Этой базы больше нет. Верните её всю, новой базой"_s, copy.Note().base,
                   ENOENT);
  }
  return copy.Opened().base_path + inside;
}

void BringBackFile(const DataDir& data, const UnpackedCopy& copy, const QString& inside,
                   const QString& what) {
  SaveSet save(data, what);
  save.CopyFirst();
  save.Write(PresentPath(data, copy, inside), copy.Data().Read(copy.Opened().Path(inside)));
  save.Commit();
}

}  // namespace

UnpackedCopy::UnpackedCopy(const StoredCopy& copy, const Progress& progress)
    : note_(copy.note), place_(NewPlace()) {
  try {
    Unpack(copy, progress);
    data_.emplace(DecodePath(place_));
    const std::vector<CatalogueEntry> bases = ListDatabases(*data_);
    if (bases.size() == 1) entry_ = bases[0];
    session_.chosen_base = entry_.descriptor.path;
    if (!OpenDatabase(session_, *data_)) {
      ThrowFileError(u"В копии нет базы"_s, DecodePath(copy.file), EBADMSG);
    }
  } catch (...) {
    syscalls::RemoveTree(place_);
    throw;
  }
}

UnpackedCopy::~UnpackedCopy() { syscalls::RemoveTree(place_); }

void UnpackedCopy::Unpack(const StoredCopy& copy, const Progress& progress) {
  CheckUnpacked(syscalls::MakeDirectory(place_), place_);
  const auto all = static_cast<double>(std::max<qint64>(note_.files, 1));
  qint64 done = 0;
  const quint64 sum =
      ReadArchive(ArchiveBytes(copy.file), copy.file, [&](const ArchivedFile& file) {
        const QByteArray path = place_ + '/' + file.name;
        if (file.is_directory) {
          CheckUnpacked(syscalls::MakeDirectory(path), path);
        } else {
          WriteUnpacked(path, file);
          progress.Tell(static_cast<double>(++done) / all);
        }
        return true;
      });
  if (sum != note_.sum) {
    ThrowFileError(u"Копия повреждена: в ней не то, что было записано"_s, DecodePath(copy.file),
                   EBADMSG);
  }
}

std::vector<CopiedDocument> DocumentsOf(const UnpackedCopy& copy, const Progress& progress) {
  struct Place {
    DocumentKind kind;
    QString warehouse;
  };
  std::vector<Place> places;
  for (const QString& warehouse : copy.Opened().warehouses) {
    places.push_back({DocumentKind::kReceipt, warehouse});
    places.push_back({DocumentKind::kShipment, warehouse});
  }
  places.push_back({DocumentKind::kTransfer, {}});
  std::vector<CopiedDocument> documents;
  for (size_t i = 0; i < places.size(); ++i) {
    const auto& [kind, warehouse] = places[i];
    const QString directory = DocumentDirectory(copy.Opened(), kind, warehouse);
    if (!copy.Data().DirectoryExists(directory)) continue;
    ScanDocuments(copy.Data(), kind, directory, Unreadable::kPassOver, [&](auto& document) {
      progress.Tell((static_cast<double>(i) + document.Part()) /
                    static_cast<double>(places.size()));
      documents.push_back(
          {kind, warehouse, document.File(), ReadDocumentHead(kind, document.HeadBytes())});
      return true;
    });
  }
  return documents;
}

std::vector<CopiedList> ListsOf(const UnpackedCopy& copy) {
  const Session& session = copy.Opened();
  std::vector<CopiedList> lists = {{u"Товары"_s, files::kGoods.toString()},
                                   {u"Фирмы"_s, files::kFirms.toString()},
                                   {u"Поставщики"_s, files::kSuppliers.toString()},
                                   {u"Клиенты"_s, files::kClients.toString()},
                                   {u"Основная валюта"_s, files::kCurrency.toString()},
                                   {u"Ставки налогов"_s, files::kTaxRates.toString()}};
  for (const QString& warehouse : session.warehouses) {
    lists.push_back({u"Остатки склада «%1»"_s.arg(warehouse), warehouse + u'\\' + files::kLedger});
    const QString prices = warehouse + u'\\' + files::kPrices;
    QStringList price_files;
    IgnoreErrors(
        [&] { price_files = copy.Data().List(session.Path(prices), files::kPriceExtension); });
    for (const QString& file : price_files) {
      lists.push_back({u"Прайс-лист %1 склада «%2»"_s.arg(
                           file.chopped(files::kPriceExtension.size()), warehouse),
                       prices + u'\\' + file});
    }
  }
  std::erase_if(lists, [&](const CopiedList& list) {
    return !copy.Data().FileExists(session.Path(list.path));
  });
  return lists;
}

void BringBackWhole(const DataDir& data, const UnpackedCopy& copy, const Progress& progress) {
  RestoreDatabases(data, copy.Data(), {copy.Entry()}, progress);
}

void BringBackDocument(const DataDir& data, const UnpackedCopy& copy,
                       const CopiedDocument& document) {
  const QString path =
      DocumentPath(copy.Opened(), document.kind, document.warehouse, document.file);
  BringBackFile(data, copy, path.mid(copy.Opened().base_path.size()),
                u"накладная %1 возвращена из копии"_s.arg(document.head.number));
}

void BringBackList(const DataDir& data, const UnpackedCopy& copy, const CopiedList& list) {
  BringBackFile(data, copy, list.path, u"список «%1» возвращён из копии"_s.arg(list.title));
}

QString NameOfTarget(const DataDir& data, const UnpackedCopy& copy) {
  for (const CatalogueEntry& base : ListDatabases(data)) {
    if (base.descriptor.path == copy.Opened().base_path) return base.descriptor.name;
  }
  return {};
}

}  // namespace kladez
