#include "books/directories/PartyDirectory.h"

#include <array>

#include "books/store/SaveSet.h"
#include "formats/InOrder.h"

namespace kladez {
namespace {

struct SavedRow {
  PartyKind kind;
  QStringView what;
};

constexpr auto kSaved = std::to_array<SavedRow>({
    {PartyKind::kFirm, u"справочник фирм записан"},
    {PartyKind::kClient, u"справочник клиентов записан"},
    {PartyKind::kSupplier, u"справочник поставщиков записан"},
});
static_assert(IsInOrder(kSaved, &SavedRow::kind));

}  // namespace

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
  SaveSet save(data_, kSaved[static_cast<size_t>(kind_)].what.toString());
  save.Write(Path(), WriteParties(rows_), file_);
  save.Commit();
  saved_ = rows_;
  QStringList names;
  for (const Party& party : rows_) names.append(party.constFirst());
  session_.Parties(kind_) = names;
}

}  // namespace kladez
