// Import: copies chosen areas of another Database over those of the open one, file by file. Nothing
// is merged, no record is looked at.
#pragma once

#include <QString>
#include <array>

#include "books/store/DataDir.h"

namespace kladez {

// In the order in which they are worked through.
enum class ImportArea {
  kGoods,
  kCurrency,
  kWarehouses,
  kFirms,
  kSuppliers,
  kClients,
  kStock,     // each warehouse's ledger
  kPrices,    // each warehouse's price lists and their names
  kAccounts,  // with suppliers; no screen of the system writes them
};
inline constexpr int kImportAreas = static_cast<int>(ImportArea::kAccounts) + 1;

// What is ticked. Stock and price lists are of no use without the goods and the warehouses, nor
// accounts without the suppliers: ticking them ticks and locks those. What was ticked so stays
// ticked when the lock goes.
class ImportChoice {
 public:
  // Whether the area is to be copied; whether its tick is held by another one.
  bool IsTicked(ImportArea area) const { return ticked_[static_cast<size_t>(area)]; }
  bool IsLocked(ImportArea area) const;
  void Tick(ImportArea area, bool on);  // no effect on a locked one

 private:
  std::array<bool, kImportAreas> ticked_{};
};

// Copies the ticked areas from one Database (its path, "0002\") to another, as one save. What can't
// be read, or has no place or no right to be written, is passed over without a word and the rest
// goes on. Throws filesystem_error only when the save as a whole fails; nothing has changed then.
void ImportAreas(const DataDir& data, const QString& source, const QString& destination,
                 const ImportChoice& choice);

}  // namespace kladez
