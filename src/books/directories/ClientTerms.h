// What was agreed with a client: price list and discount, kept beside the told files (OwnRecords.h)
// under the client's exact name. They are proposed in a shipment and may be changed there.
//
//   Рога и копыта
//   Скидка, %
//   5
//   Цены
//   Опт
//
#pragma once

#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/OwnRecords.h"

namespace kladez {

struct ClientTerms {
  QString price_list;  // as it is called in the warehouses
  QString discount;    // percent, a number text; empty for none

  bool operator==(const ClientTerms&) const = default;
};

// A discount that is no number above zero and up to 100 is none.
ClientTerms TermsOf(const OwnRecords& records, const QString& client);
void SetTerms(OwnRecords& records, const QString& client, const ClientTerms& terms);

// Those of the open Database; none where the file is missing or damaged. Never throws.
ClientTerms FindTerms(const DataDir& data, const Session& session, const QString& client);

}  // namespace kladez
