#include "books/directories/PartyDirectory.h"

#include "books/store/SaveSet.h"

namespace kladez {

PartyDirectory::PartyDirectory(const DataDir& data, Session& session, PartyKind kind)
    : data_(data), session_(session), kind_(kind) {
  Reload();
}

void PartyDirectory::Reload() {
  FileState file;
  rows_ = saved_ = ReadParties(kind_, ReadIfThere(data_, Path(), file));
  file_ = file;
}

void PartyDirectory::Save() {
  static constexpr QStringView kWhat[] = {u"справочник фирм записан",
                                          u"справочник клиентов записан",
                                          u"справочник поставщиков записан"};
  SaveSet save(data_, kWhat[static_cast<size_t>(kind_)].toString());
  save.Write(Path(), WriteParties(rows_), file_);
  save.Commit();
  saved_ = rows_;
  QStringList names;
  for (const Party& party : rows_) names.append(party.constFirst());
  session_.Parties(kind_) = names;
}

}  // namespace kladez
