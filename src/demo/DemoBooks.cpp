#include "demo/DemoBooks.h"

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "books/directories/WarehouseDirectory.h"
#include "books/store/Catalogue.h"
#include "books/store/SaveSet.h"
#include "demo/DemoGoods.h"
#include "demo/DemoTrade.h"
#include "formats/DatabaseFiles.h"
#include "formats/GoodsFile.h"
#include "formats/Numbers.h"
#include "formats/PriceFile.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView kShop = u"Магазин на Садовой";

std::vector<GoodsRecord> GoodsRecords() {
  std::vector<GoodsRecord> records;
  for (const demo::DemoGroup& group : demo::Groups()) {
    records.push_back({.name = u' ' + group.name.toString(),
                       .country = {},
                       .declaration = {},
                       .unit = {},
                       .price = {}});
    for (const demo::DemoItem& item : group.items) {
      records.push_back({.name = item.name.toString(),
                         .country = item.country.toString(),
                         .declaration = item.declaration.toString(),
                         .unit = item.unit.toString(),
                         .price = FormatMoney(item.price)});
    }
  }
  return records;
}

QByteArray Parties(PartyKind kind, std::span<const demo::DemoParty> parties) {
  std::vector<Party> records;
  for (size_t i = 0; i < parties.size(); ++i) {
    records.push_back(demo::RecordOf(kind, parties[i], static_cast<int>(i)));
  }
  return WriteParties(records);
}

// Retail, small wholesale and wholesale, each with its own mark-up.
void AddPriceLists(SaveSet& save, const Session& session, const QString& warehouse) {
  for (size_t list = 0; list < demo::kMarkUps.size(); ++list) {
    std::vector<PriceRecord> rows;
    for (const GoodsRecord& goods : GoodsRecords()) {
      rows.push_back({goods.name, goods.unit, goods.price, {}});
      if (!goods.IsGroup()) {
        rows.back().sale = demo::SalePrice(NumberOr(goods.price), static_cast<int>(list));
      }
    }
    save.Write(session.Path(warehouse, QString(files::kPrices + u'\\' +
                                               NumberedName(static_cast<int>(list) + 1) +
                                               files::kPriceExtension)),
               WritePrices(rows));
  }
}

void FillDirectories(const DataDir& data, Session& session) {
  WarehouseDirectory(data, session).Create(kShop.toString());
  SaveSet save(data);
  save.Write(session.Path(files::kGoods), WriteGoods(GoodsRecords()));
  save.Write(session.Path(PartyPath(PartyKind::kFirm)), Parties(PartyKind::kFirm, demo::Firms()));
  save.Write(session.Path(PartyPath(PartyKind::kSupplier)),
             Parties(PartyKind::kSupplier, demo::Suppliers()));
  save.Write(session.Path(PartyPath(PartyKind::kClient)),
             Parties(PartyKind::kClient, demo::Clients()));
  for (const QString& warehouse : session.warehouses) AddPriceLists(save, session, warehouse);
  save.Commit();
}

// Puts a finished tree and its descriptor under another number, all of it or nothing.
QString Adopt(const DataDir& from, const QString& base, const DataDir& data) {
  const qint64 number = NextDatabaseNumber(data);
  const QString adopted = NumberedName(number) + u'\\';
  const QString source = from.Resolve(base);
  SaveSet save(data);
  save.Write(NumberedName(number) + files::kDescriptorExtension,
             WriteDescriptor({adopted, kDemonstrationName.toString()}));
  save.MakeDirectory(adopted);
  QDirIterator walk(source, QDir::Dirs | QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString inside = walk.next().mid(source.size() + 1).replace(u'/', u'\\');
    if (walk.fileInfo().isDir()) {
      save.MakeDirectory(adopted + inside);
    } else {
      save.Write(adopted + inside, from.Read(base + inside));
    }
  }
  save.Commit();
  return adopted;
}

// In memory where the machine has such a place: a hundred saves need no disk to be thrown away.
QString WorkshopTemplate() {
  const QString memory = u"/dev/shm"_s;
  const QString folder = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
  return folder + u"/kladez-demo-XXXXXX"_s;
}

}  // namespace

QString WriteDemonstrationBooks(const DataDir& data, QDate today) {
  const QTemporaryDir workshop(WorkshopTemplate());
  const DataDir workshop_data(workshop.path());
  Session session;
  session.chosen_base = CreateDatabase(workshop_data, kDemonstrationName.toString());
  OpenDatabase(session, workshop_data);
  FillDirectories(workshop_data, session);
  OpenDatabase(session, workshop_data);  // picks up the names of the parties
  demo::Trade(workshop_data, session, today);
  return Adopt(workshop_data, session.base_path, data);
}

}  // namespace kladez
