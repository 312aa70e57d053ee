#include "books/directories/PartyDirectory.h"

#include "books/store/SaveSet.h"

namespace kladez {

PartyDirectory::PartyDirectory(const DataDir& data, Session& session, PartyKind kind)
    : data_(data), session_(session), kind_(kind) {
  const QString path = session.Path(PartyPath(kind));
  // Only a missing file is an empty list: one that can't be read must not be written over.
  if (data.FileExists(path)) rows_ = ReadParties(kind, data.Read(path));
}

void PartyDirectory::Save() {
  SaveSet save(data_);
  save.Write(session_.Path(PartyPath(kind_)), WriteParties(rows_));
  save.Commit();
  QStringList names;
  for (const Party& party : rows_) names.append(party.constFirst());
  session_.Parties(kind_) = names;
}

}  // namespace kladez
