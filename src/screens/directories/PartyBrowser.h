// The directory of parties of one kind. "OK" writes the file; "Отмена" loses all that was
// added, changed and deleted, and any other end asks about it.
#pragma once

#include "books/directories/PartyDirectory.h"
#include "screens/directories/DirectoryDialog.h"
#include "screens/directories/PartyForm.h"
#include "ui/AppContext.h"

namespace kladez {

class PartyBrowser : public DirectoryDialog {
  Q_OBJECT

 public:
  // Throws filesystem_error when the file can't be read.
  PartyBrowser(AppContext& context, PartyKind kind, QWidget* parent);

 protected:
  void Add() override;
  void Change(int row) override;
  void Remove(int row) override;
  void Save() override;
  bool IsChanged() const override { return directory_.IsChanged(); }
  bool IsCurrent() const override { return directory_.IsCurrent(); }
  void ReadAgain() override { directory_.Reload(); }

 private:
  std::optional<TermsEntry> EntryOf(const ClientTerms& terms) const;

  AppContext& context_;
  PartyDirectory directory_;
};

}  // namespace kladez
