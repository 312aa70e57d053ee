// What differs between receipts, shipments and transfers, in one table: where their files lie, what
// they do to the ledgers, what their register adds up. All else is the same for the three.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "books/stock/PrintSource.h"
#include "books/stock/StockLedger.h"
#include "books/store/Session.h"
#include "books/store/SettingsStore.h"
#include "formats/DocumentFile.h"

namespace kladez {

// What a document does to one ledger, and how its deletion takes that back.
struct LedgerEffect {
  QString DocumentHead::*warehouse;  // null: the warehouse in which the document lies
  Posting posting;
  // Put before the quantity of a reversing record: "- 5" for what was received. It stays a text
  // with a blank, which readers take for -5.
  QString reversal;
};

struct DocumentBook {
  QStringView name;              // "Приход"
  QStringView directory;         // "PRH"
  bool in_warehouse;             // else the directory lies beside the warehouses
  Setting sort;                  // "AZ" or "ZA"
  QString DocumentHead::*total;  // the sum that the register adds up
  // A closed document posts once, when it is saved closed for the first time; a transfer has no
  // flag and posts when it is saved for the first time.
  bool has_flag;
  std::vector<LedgerEffect> effects;
};

// The row of the table for a kind.
const DocumentBook& BookOf(DocumentKind kind);

// The directory of a kind's files, and a file in it; transfers do not mind the warehouse.
QString DocumentDirectory(const Session& session, DocumentKind kind, const QString& warehouse);
QString DocumentPath(const Session& session, DocumentKind kind, const QString& warehouse,
                     const QString& file);

// The warehouse whose ledger an effect of a document changes; `home` is where the document lies.
QString WarehouseOf(const LedgerEffect& effect, const DocumentHead& head, const QString& home);

// The records that take back what a document did to the ledger of an effect.
std::vector<LedgerRecord> ReversalOf(const LedgerEffect& effect, const Document& document);

// Quantity times price, "#0.00"; damaged numbers count as 0. Nothing where the product overflows.
std::optional<QString> LineAmount(const QString& quantity, const QString& price);

// What a print screen is handed about a document as a screen shows it.
PrintSource PrintSourceOf(DocumentKind kind, const QString& warehouse, Document document);

// A price or sum after a discount of so many percent, "#0.00".
QString AfterDiscount(const QString& value, const QString& percent);

}  // namespace kladez
