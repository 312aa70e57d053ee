#include "books/store/Import.h"

#include <QFileInfo>
#include <array>
#include <set>

#include "books/store/Errors.h"
#include "books/store/SaveSet.h"
#include "formats/CurrencyFile.h"
#include "formats/DatabaseFiles.h"
#include "formats/InOrder.h"
#include "formats/Ordering.h"
#include "formats/PartyFile.h"
#include "formats/TextLines.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Gathers one save; each step passes over what stands in its way.
class Gathering {
 public:
  Gathering(const DataDir& data, const QString& source, const QString& destination)
      : data_(data), source_(source), destination_(destination), save_(data, u"импорт"_s) {
    save_.CopyFirst();
  }

  void Commit() { save_.Commit(); }

  void CopyFile(const QString& name) {
    IgnoreErrors([&] { Write(name, data_.Read(source_ + name)); });
  }

  // A source without a currency gives back the rouble. One that has it copies a file which no
  // Database holds, so that the destination keeps its own: the currency itself is never copied.
  void CopyCurrency() {
    if (data_.FileExists(source_ + files::kCurrency)) {
      CopyFile(u"currency.spr"_s);
    } else {
      IgnoreErrors([&] { Write(files::kCurrency.toString(), WriteCurrency(RoubleCurrency())); });
    }
    CopyOwn(files::kTaxRates);
  }

  // A file in the folder that older programs do not know goes with the area that it belongs to.
  void CopyOwn(QStringView name) {
    if (!data_.FileExists(source_ + name)) return;
    MakeDirectory(files::kOwnDirectory.toString());
    CopyFile(name.toString());
  }

  void CopyGoods() {
    CopyFile(files::kGoods.toString());
    CopyOwn(files::kGoodsExtras);
  }

  void CopyClients() {
    CopyFile(PartyPath(PartyKind::kClient).toString());
    CopyOwn(files::kClientTerms);
  }

  void CopyStock() {
    for (const QString& warehouse : SourceWarehouses()) {
      MakeWarehouse(warehouse);
      CopyFile(warehouse + u'\\' + files::kLedger);
    }
  }

  void CopyPrices() {
    for (const QString& warehouse : SourceWarehouses()) {
      MakeWarehouse(warehouse);
      CopyFile(warehouse + u'\\' + files::kPriceNames);
      const QString lists = warehouse + u'\\' + files::kPrices + u'\\';
      IgnoreErrors([&] {
        for (const QString& file : data_.List(source_ + lists, files::kPriceExtension))
          CopyFile(lists + file);
      });
    }
  }

 private:
  QStringList SourceWarehouses() const {
    return DecodeLines(data_.ReadIfAny(source_ + files::kWarehouses).value_or(QByteArray()));
  }

  void MakeWarehouse(const QString& name) {
    MakeDirectory(name);
    for (const QStringView directory : files::kWarehouseDirectories) {
      MakeDirectory(name + u'\\' + directory);
    }
  }

  void MakeDirectory(const QString& name) {
    IgnoreErrors([&] {
      const QString path = data_.Resolve(destination_ + name);
      if (QFileInfo::exists(path) || !TakesFiles(QFileInfo(path).path())) return;
      // Names that differ in letter case only are one directory.
      if (!made_.insert(FoldCase(path)).second) return;
      made_exactly_.insert(path);
      save_.MakeDirectory(destination_ + name);
    });
  }

  void Write(const QString& name, const QByteArray& bytes) {
    const QString path = data_.Resolve(destination_ + name);
    const QFileInfo there(path);
    if (!TakesFiles(there.path())) return;
    if (there.exists() && (!there.isFile() || syscalls::WriteRefusal(EncodePath(path)) != 0)) {
      return;
    }
    save_.Write(destination_ + name, bytes);
  }

  bool TakesFiles(const QString& directory) const {
    if (made_exactly_.contains(directory)) return true;
    return QFileInfo(directory).isDir() && syscalls::WriteRefusal(EncodePath(directory)) == 0;
  }

  const DataDir& data_;
  QString source_;
  QString destination_;
  SaveSet save_;
  std::set<QString> made_;          // upper-cased
  std::set<QString> made_exactly_;  // as spelled
};

struct AreaStep {
  ImportArea area;
  void (*copy)(Gathering& gathering);
};

constexpr auto kSteps = std::to_array<AreaStep>({
    {ImportArea::kGoods, [](Gathering& g) { g.CopyGoods(); }},
    {ImportArea::kCurrency, [](Gathering& g) { g.CopyCurrency(); }},
    {ImportArea::kWarehouses, [](Gathering& g) { g.CopyFile(files::kWarehouses.toString()); }},
    {ImportArea::kFirms, [](Gathering& g) { g.CopyFile(PartyPath(PartyKind::kFirm).toString()); }},
    {ImportArea::kSuppliers,
     [](Gathering& g) { g.CopyFile(PartyPath(PartyKind::kSupplier).toString()); }},
    {ImportArea::kClients, [](Gathering& g) { g.CopyClients(); }},
    {ImportArea::kStock, [](Gathering& g) { g.CopyStock(); }},
    {ImportArea::kPrices, [](Gathering& g) { g.CopyPrices(); }},
    {ImportArea::kAccounts, [](Gathering& g) { g.CopyFile(files::kAccounts.toString()); }},
});
static_assert(IsInOrder(kSteps, &AreaStep::area) && kSteps.size() == kImportAreas);

}  // namespace

bool ImportChoice::IsLocked(ImportArea area) const {
  switch (area) {
    case ImportArea::kGoods:
    case ImportArea::kWarehouses:
      return IsTicked(ImportArea::kStock) || IsTicked(ImportArea::kPrices);
    case ImportArea::kSuppliers:
      return IsTicked(ImportArea::kAccounts);
    default:
      return false;
  }
}

void ImportChoice::Tick(ImportArea area, bool on) {
  if (IsLocked(area)) return;
  ticked_[static_cast<size_t>(area)] = on;
  for (int other = 0; other < kImportAreas; ++other) {
    if (IsLocked(static_cast<ImportArea>(other))) ticked_[static_cast<size_t>(other)] = true;
  }
}

void ImportAreas(const DataDir& data, const QString& source, const QString& destination,
                 const ImportChoice& choice) {
  Gathering gathering(data, source, destination);
  for (const AreaStep& step : kSteps) {
    if (choice.IsTicked(step.area)) step.copy(gathering);
  }
  gathering.Commit();
}

}  // namespace kladez
