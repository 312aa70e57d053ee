#include "books/directories/PartyDirectory.h"

#include <array>

#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
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
  terms_file_.emplace(data_, session_.Path(files::kClientTerms));
  TakeTerms();
}

void PartyDirectory::TakeTerms() {
  terms_.clear();
  removed_.clear();
  for (const Party& party : rows_) {
    const QString name = party.value(0);
    terms_.push_back(
        {name, kind_ == PartyKind::kClient ? TermsOf(terms_file_->records, name) : ClientTerms()});
  }
  saved_terms_ = terms_;
}

void PartyDirectory::Add(const Party& party, const ClientTerms& terms) {
  rows_.push_back(party);
  terms_.push_back({{}, terms});
}

void PartyDirectory::Change(int row, const Party& party, const std::optional<ClientTerms>& terms) {
  rows_[row] = party;
  if (terms) terms_[static_cast<size_t>(row)].terms = *terms;
}

void PartyDirectory::Remove(int row) {
  removed_ << terms_[static_cast<size_t>(row)].was;
  rows_.erase(rows_.begin() + row);
  terms_.erase(terms_.begin() + row);
}

OwnRecordsFile PartyDirectory::TermsNow() const {
  OwnRecordsFile file = *terms_file_;
  if (kind_ != PartyKind::kClient) return file;
  std::vector<OwnRecords::Renaming> renamed;
  for (size_t i = 0; i < rows_.size(); ++i) renamed.push_back({terms_[i].was, rows_[i].value(0)});
  for (const QString& name : removed_) renamed.push_back({name, {}});
  file.records.Follow(renamed);
  // Of two clients of one name the first one's count.
  for (size_t i = rows_.size(); i-- > 0;) {
    SetTerms(file.records, rows_[i].value(0), terms_[i].terms);
  }
  return file;
}

void PartyDirectory::Save() {
  SaveSet save(data_, kSaved[static_cast<size_t>(kind_)].what.toString());
  save.Write(Path(), WriteParties(rows_), file_);
  OwnRecordsFile terms = TermsNow();
  terms.Gather(save);
  save.Commit();
  saved_ = rows_;
  terms_file_.emplace(terms);
  TakeTerms();
  QStringList names;
  for (const Party& party : rows_) names.append(party.constFirst());
  session_.Parties(kind_) = names;
}

}  // namespace kladez
