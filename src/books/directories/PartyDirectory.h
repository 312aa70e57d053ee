// The working copy of a directory of parties: own firms, clients or suppliers, in the order of the
// file, and what was agreed with each client. Adds, changes and removals are lost unless it is
// saved.
#pragma once

#include <optional>
#include <vector>

#include "books/directories/ClientTerms.h"
#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "books/store/OwnRecordsFile.h"
#include "books/store/Session.h"
#include "formats/PartyFile.h"

namespace kladez {

class PartyDirectory {
 public:
  // Reads the kind's file; a missing one is an empty list. Throws filesystem_error.
  PartyDirectory(const DataDir& data, Session& session, PartyKind kind);

  // The kind it was read as; the parties, in the order of the file.
  PartyKind Kind() const { return kind_; }
  const std::vector<Party>& Rows() const { return rows_; }

  bool IsChanged() const { return rows_ != saved_ || terms_ != saved_terms_; }
  // What was agreed with the client in a row; of other parties nothing.
  const ClientTerms& Terms(int row) const { return terms_[static_cast<size_t>(row)].terms; }
  // The file of them is there and can't be read; the next one saved replaces it.
  bool TermsAreDamaged() const { return terms_file_->IsDamaged(); }

  // At the end; at a row that exists. Nothing is written before Save.
  void Add(const Party& party, const ClientTerms& terms = {});
  // Without terms the client keeps those that he has.
  void Change(int row, const Party& party, const std::optional<ClientTerms>& terms = {});
  void Remove(int row);

  // Writes the file whole, and gives the session the names of the kind. Throws filesystem_error.
  void Save();
  // Reads the file again, and loses what was not saved.
  void Reload();
  // Whether the file is still what was read or saved last.
  bool IsCurrent() const { return IsStill(file_, data_, Path()); }

 private:
  struct RowTerms {
    QString was;  // the client's name when the file was read or saved; empty for a new one
    ClientTerms terms;

    bool operator==(const RowTerms&) const = default;
  };

  void TakeTerms();
  OwnRecordsFile TermsNow() const;
  QString Path() const { return session_.Path(PartyPath(kind_)); }

  const DataDir& data_;
  Session& session_;
  PartyKind kind_;
  std::vector<Party> rows_;
  FileState file_;
  std::vector<Party> saved_;
  std::optional<OwnRecordsFile> terms_file_;  // always there
  std::vector<RowTerms> terms_;               // row by row
  std::vector<RowTerms> saved_terms_;
  QStringList removed_;
};

}  // namespace kladez
