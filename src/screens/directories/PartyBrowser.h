// The directory of parties of one kind. "OK" writes the file; any other end loses all that was
// added, changed and deleted.
#pragma once

#include "books/directories/PartyDirectory.h"
#include "screens/directories/DirectoryDialog.h"
#include "ui/AppContext.h"

namespace kladez {

class PartyBrowser : public DirectoryDialog {
  Q_OBJECT

 protected:
  // Throws filesystem_error when the file can't be read.
  PartyBrowser(AppContext& context, PartyKind kind, QWidget* parent);

  void Add() override;
  void Change(int row) override;
  void Remove(int row) override;
  void Save() override;

 private:
  PartyDirectory directory_;
};

}  // namespace kladez
