#include "books/store/Session.h"

#include "books/store/Errors.h"
#include "books/store/SaveSet.h"
#include "formats/CurrencyFile.h"
#include "formats/PartyFile.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QStringList PartyNames(const Session& session, const DataDir& data, PartyKind kind) {
  QStringList names;
  const auto bytes = data.ReadIfAny(session.Path(PartyPath(kind)));
  for (const Party& party : ReadParties(kind, bytes.value_or(QByteArray()))) {
    names.append(party.constFirst());
  }
  return names;
}

QString ShortCurrency(const Session& session, const DataDir& data) {
  const QString path = session.Path(u"currency.usd"_s);
  if (!data.FileExists(path)) {
    IgnoreErrors([&] {
      SaveSet save(data);
      save.Write(path, WriteCurrency(RoubleCurrency()));
      save.Commit();
    });
  }
  const auto bytes = data.ReadIfAny(path);
  return bytes ? ReadCurrency(*bytes).ShortForm() : RoubleCurrency().ShortForm();
}

}  // namespace

bool OpenDatabase(Session& session, const DataDir& data) {
  session.basedir = session.bases_text1;
  if (!IsPlainTreePath(session.basedir) || !data.DirectoryExists(session.basedir)) {
    session.basedir.clear();  // none is open
    return false;
  }
  const auto warehouses = data.ReadIfAny(session.Path(u"склад.usd"_s));
  session.SkladNames = DecodeLines(warehouses.value_or(QByteArray()));
  session.rub = ShortCurrency(session, data);
  session.Post = PartyNames(session, data, PartyKind::kSupplier);
  session.firma = PartyNames(session, data, PartyKind::kFirm);
  session.Klient = PartyNames(session, data, PartyKind::kClient);
  return true;
}

void CloseDatabase(Session& session) {
  session.basedir.clear();
  session.SkladNames.clear();
  session.Post.clear();
  session.firma.clear();
  session.Klient.clear();
}

}  // namespace kladez
