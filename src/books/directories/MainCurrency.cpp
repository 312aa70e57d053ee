#include "books/directories/MainCurrency.h"

#include "books/store/Errors.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"

namespace kladez {

using namespace Qt::StringLiterals;

Currency LoadMainCurrency(const DataDir& data, const Session& session, FileState& file) {
  const QByteArray bytes = ReadIfThere(data, session.Path(files::kCurrency), file);
  return file.exists ? ReadCurrency(bytes) : RoubleCurrency();
}

std::optional<TaxRates> LoadTaxRates(const DataDir& data, const Session& session, FileState& file) {
  std::optional<TaxRates> rates;
  IgnoreErrors([&] {
    const QByteArray bytes = ReadIfThere(data, session.Path(files::kTaxRates), file);
    rates = file.exists ? ReadTaxRates(bytes) : TaxRates();
  });
  return rates;
}

void SaveMainCurrency(const DataDir& data, Session& session, const Currency& currency,
                      FileState& file, const TaxRates& rates, FileState& rates_file) {
  SaveSet save(data, u"основная валюта записана"_s);
  save.Write(session.Path(files::kCurrency), WriteCurrency(currency), file);
  FileState now;
  if (LoadTaxRates(data, session, now) != rates) {
    save.MakeDirectory(session.Path(files::kOwnDirectory));
    save.Write(session.Path(files::kTaxRates), WriteTaxRates(rates), rates_file);
  }
  save.Commit();
  session.currency_name = currency.ShortForm();
}

}  // namespace kladez
