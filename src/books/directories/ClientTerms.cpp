#include "books/directories/ClientTerms.h"

#include "books/store/OwnRecordsFile.h"
#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kDiscount = u"Скидка, %"_s;
const QString kPriceList = u"Цены"_s;

}  // namespace

ClientTerms TermsOf(const OwnRecords& records, const QString& client) {
  ClientTerms terms{records.Value(client, kPriceList), records.Value(client, kDiscount)};
  const double percent = NumberOr(terms.discount);
  if (percent <= 0 || percent > 100) terms.discount.clear();
  return terms;
}

void SetTerms(OwnRecords& records, const QString& client, const ClientTerms& terms) {
  records.Set(client, kPriceList, terms.price_list);
  records.Set(client, kDiscount, terms.discount);
}

ClientTerms FindTerms(const DataDir& data, const Session& session, const QString& client) {
  return TermsOf(OwnRecordsFile(data, session.Path(files::kClientTerms)).records, client);
}

}  // namespace kladez
