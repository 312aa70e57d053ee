#include "books/directories/MainCurrency.h"

#include "books/store/SaveSet.h"

namespace kladez {

Currency LoadMainCurrency(const DataDir& data, const Session& session, FileState& file) {
  const QByteArray bytes = ReadIfThere(data, session.Path(u"currency.usd"), file);
  return file.exists ? ReadCurrency(bytes) : RoubleCurrency();
}

void SaveMainCurrency(const DataDir& data, Session& session, const Currency& currency,
                      FileState& file) {
  SaveSet save(data);
  save.Write(session.Path(u"currency.usd"), WriteCurrency(currency), file);
  save.Commit();
  session.currency_name = currency.ShortForm();
}

}  // namespace kladez
