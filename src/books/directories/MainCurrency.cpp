#include "books/directories/MainCurrency.h"

#include "books/store/SaveSet.h"

namespace kladez {

Currency LoadMainCurrency(const DataDir& data, const Session& session) {
  const QString path = session.Path(u"currency.usd");
  return data.FileExists(path) ? ReadCurrency(data.Read(path)) : RoubleCurrency();
}

void SaveMainCurrency(const DataDir& data, Session& session, const Currency& currency) {
  SaveSet save(data);
  save.Write(session.Path(u"currency.usd"), WriteCurrency(currency));
  save.Commit();
  session.currency_name = currency.ShortForm();
}

}  // namespace kladez
