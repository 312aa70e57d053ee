// The working copy of a directory of parties: own firms, clients or suppliers, in the order of the
// file. Adds, changes and removals are lost unless it is saved.
#pragma once

#include <vector>

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
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

  bool IsChanged() const { return rows_ != saved_; }  // by what was not saved

  // At the end; at a row that exists. Nothing is written before Save.
  void Add(const Party& party) { rows_.push_back(party); }
  void Change(int row, const Party& party) { rows_[row] = party; }
  void Remove(int row) { rows_.erase(rows_.begin() + row); }

  // Writes the file whole, and gives the session the names of the kind. Throws filesystem_error.
  void Save();
  // Reads the file again, and loses what was not saved.
  void Reload();
  // Whether the file is still what was read or saved last.
  bool IsCurrent() const { return IsStill(file_, data_, Path()); }

 private:
  QString Path() const { return session_.Path(PartyPath(kind_)); }

  const DataDir& data_;
  Session& session_;
  PartyKind kind_;
  std::vector<Party> rows_;
  FileState file_;
  std::vector<Party> saved_;
};

}  // namespace kladez
