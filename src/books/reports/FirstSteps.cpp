#include "books/reports/FirstSteps.h"

#include <algorithm>

#include "books/stock/DocumentBook.h"
#include "books/store/Catalogue.h"
#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"
#include "formats/GoodsFile.h"
#include "formats/PriceFile.h"

namespace kladez {
namespace {

QByteArray BytesOf(const DataDir& data, const QString& path) {
  return data.ReadIfAny(path).value_or(QByteArray());
}

bool HasGoods(const DataDir& data, const Session& session) {
  bool any = false;
  ForEachGoods(BytesOf(data, session.Path(files::kGoods)),
               [&](const RawGoods& goods) { any = any || !goods.IsGroup(); });
  return any;
}

// Files of a warehouse's directory for which `counts` says so, any of them in any warehouse.
template <typename Counts>
bool AnyFile(const DataDir& data, const Session& session, const QStringView directory,
             QStringView extension, Counts counts) {
  return std::ranges::any_of(session.warehouses, [&](const QString& warehouse) {
    const QString path = session.Path(warehouse, directory);
    QStringList files;
    IgnoreErrors([&] { files = data.List(path, extension); });
    return std::ranges::any_of(files,
                               [&](const QString& file) { return counts(path + u'\\' + file); });
  });
}

bool HasDocument(const DataDir& data, const Session& session, DocumentKind kind) {
  return AnyFile(data, session, BookOf(kind).directory, FormatOf(kind).extension,
                 [](const QString&) { return true; });
}

bool HasPrices(const DataDir& data, const Session& session) {
  return AnyFile(data, session, files::kPrices, files::kPriceExtension, [&](const QString& path) {
    bool any = false;
    ForEachPrice(BytesOf(data, path), [&](QByteArrayView name, QByteArrayView, QByteArrayView,
                                          QByteArrayView) { any = any || !name.startsWith(' '); });
    return any;
  });
}

}  // namespace

bool FirstSteps::AllDone() const {
  return std::ranges::all_of(done, [](bool step) { return step; });
}

FirstSteps ReadFirstSteps(const DataDir& data, const Session& session) {
  const QByteArray firms = BytesOf(data, session.Path(files::kFirms));
  return {{!firms.isEmpty() && firms != FirstFirmBytes(), HasGoods(data, session),
           HasDocument(data, session, DocumentKind::kReceipt), HasPrices(data, session),
           HasDocument(data, session, DocumentKind::kShipment)}};
}

}  // namespace kladez
