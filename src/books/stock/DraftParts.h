// What a draft of a document is made of: where it lies, its lines, and how its saving may end.
#pragma once

#include <QString>

#include "books/stock/DocumentBook.h"
#include "books/store/DataDir.h"

namespace kladez {

// Where the document lies; data and session outlive the draft.
struct DraftPlace {
  const DataDir& data;
  const Session& session;
  DocumentKind kind;
  QString warehouse;  // chosen in the register; transfers have none
};

struct DraftLine {
  DocumentLine line;
  QString amount;  // quantity times price, "#0.00"; it is not stored
};

// The line with what it comes to; "0.00" where quantity or price is no number.
DraftLine WithAmount(DocumentLine line);

// All but kSaved: nothing was written.
enum class DraftOutcome {
  kSaved,
  kNoLines,        // receipts and shipments
  kSameWarehouse,  // transfers
  kFileExists,     // a new document, and another has its file's name
};

}  // namespace kladez
