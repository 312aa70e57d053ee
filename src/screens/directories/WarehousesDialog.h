// "Список складов": creates, renames and deletes warehouses. Creating and deleting are written at
// once; a new name reaches the list file with "OK" only.
#pragma once

#include "books/directories/WarehouseDirectory.h"
#include "screens/directories/DirectoryDialog.h"
#include "ui/AppContext.h"

namespace kladez {

class WarehousesDialog : public DirectoryDialog {
  Q_OBJECT

 public:
  explicit WarehousesDialog(AppContext& context, QWidget* parent = nullptr);

 protected:
  void Add() override;
  void Change(int row) override;
  void Remove(int row) override;
  void Save() override;
  bool IsChanged() const override { return directory_.IsChanged(); }
  bool IsCurrent() const override { return directory_.IsCurrent(); }
  void ReadAgain() override { directory_.Reload(); }

 private:
  // Asks until the name may be one or the user gives up; empty then.
  QString AskName(const QString& prompt, const QString& value);

  WarehouseDirectory directory_;
};

}  // namespace kladez
