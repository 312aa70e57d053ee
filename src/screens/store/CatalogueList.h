// The list of Databases on the catalogue screens and in the copy wizards: one row a descriptor,
// with its display name.
#pragma once

#include <set>
#include <vector>

#include "books/store/Catalogue.h"
#include "ui/controls/RecordList.h"

class QDialog;
class QPushButton;

namespace kladez {

class CatalogueList : public RecordList {
  Q_OBJECT

 public:
  enum class Checks { kNone, kBoxes };
  explicit CatalogueList(QWidget* parent, Checks checks = Checks::kNone);

  // Reads the descriptors of a directory anew; nothing is checked or selected then.
  void Fill(const DataDir& directory);

  // The field "Имя базы данных:" follows the selected row.
  void ShowNameIn(TextLine* field);
  // Lays a dialog out: the list, the field under the caption, the two commands.
  void LayOut(QDialog* dialog, const QString& caption, TextLine* field, QPushButton* command,
              QPushButton* cancel);

  int Count() const { return static_cast<int>(entries_.size()); }
  bool HasSelection() const { return CurrentRow() >= 0; }
  // Empty texts without a selection.
  CatalogueEntry Selected() const;
  std::vector<CatalogueEntry> Checked() const;  // in list order

 private:
  std::vector<CatalogueEntry> entries_;
  std::set<int> checked_;
  RecordModel model_;
};

}  // namespace kladez
