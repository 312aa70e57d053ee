// The working copy of the goods directory, spr\товар.spr: the rows that a screen shows, either the
// groups and their goods in the user's order or the goods alone by name, and what a person does to
// them. Nothing is in the file before one of the saves.
#pragma once

#include <optional>
#include <vector>

#include "books/directories/GoodsExtras.h"
#include "books/directories/GoodsView.h"
#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "books/store/OwnRecordsFile.h"
#include "books/store/Session.h"
#include "formats/GoodsRows.h"

namespace kladez {

class GoodsDirectory {
 public:
  // Reads the file. Throws filesystem_error.
  GoodsDirectory(const DataDir& data, const Session& session, GoodsView view);

  // What the view shows, in its order, and the view.
  const GoodsRows& Rows() const { return rows_; }
  GoodsView View() const { return view_; }
  // Whether somebody's work would be lost by now: rows that the file does not hold, or, with the
  // goods alone shown, changes that did not reach it.
  bool IsChanged() const;
  // No further row may be added: more than 1000 of them are shown.
  bool IsFull() const;

  // Reads the file again, and loses what was not saved.
  void Reload(GoodsView view);
  // Switches to the goods alone: keeps a copy of the file as it lies on the disk, then saves the
  // rows, then shows them without groups. Whatever the rows held that the file did not is in the
  // file from then on but not in the copy, and the next save writes the copy: this is meant.
  void ShowGoodsOnly();

  // Each gives the row where the record, or the moved one, is afterwards. `below` -1 adds at the
  // end.
  int Insert(int below, const GoodsRecord& record, const GoodsExtras& extras = {});
  // Without extras the goods keep those that they have. They follow a new name, and are in the file
  // when the record is.
  int Change(int row, const GoodsRecord& record, const std::optional<GoodsExtras>& extras = {});
  int MoveUp(int row);  // goods never from the second row to the first, the place of a group
  int MoveDown(int row);
  void Remove(int row);
  void Sort();  // by group and name, see SortedInGroups

  // With the goods alone shown, a changed row reaches the file at once: the first row of the copy
  // whose text begins with its name becomes it. Nothing is saved when none does. With groups shown
  // there is nothing to do.
  void SaveChange(int row);
  // Writes the file: the rows, or the copy while the goods alone are shown.
  void Save();
  // The same with all work in it: each change that did not reach the copy goes to the record that
  // was changed.
  void SaveAll();
  // Writes the file only while the groups are shown, as a pick does.
  void SaveBeforePick();
  // Barcode and minimum of a row's goods; the goods, other than `name`, that have a barcode.
  GoodsExtras Extras(int row) const;
  QString OwnerOfBarcode(const QString& barcode, const QString& name) const;
  // Whether the file of barcodes and minima is there and can't be read; the next one saved with any
  // of them replaces it.
  bool ExtrasAreDamaged() const { return extras_->IsDamaged(); }
  // Whether the file is still what was read or saved last.
  bool IsCurrent() const { return IsStill(file_, data_, path_); }

 private:
  void Show(const QByteArray& bytes, GoodsView view);
  void Write(const QByteArray& bytes);
  void KeepCopy(const QByteArray& bytes);
  GoodsRows& Copy();
  void BeforeChange();
  void TakeExtras(const GoodsRecord& before, const GoodsRecord& after,
                  const std::optional<GoodsExtras>& extras);

  struct Renamed {
    GoodsRecord before;
    GoodsRecord after;
    std::optional<GoodsExtras> extras;
  };

  const DataDir& data_;
  QString path_;
  QString extras_path_;
  std::optional<OwnRecordsFile> extras_;  // always there
  FileState file_;
  GoodsView view_ = GoodsView::kGroups;
  GoodsRows rows_;
  std::optional<GoodsRows> saved_;  // the rows before the first change to them
  // With the goods alone shown, the file as it lies on the disk; most showings end without its
  // rows.
  QByteArray copy_bytes_;
  std::optional<GoodsRows> copy_;
  bool sorted_ = false;           // since the last save
  std::vector<Renamed> renamed_;  // with the goods alone shown: what is not in the copy
};

// Whether any warehouse has a quantity other than 0 of the goods in some record of its ledger.
// Throws filesystem_error when a ledger can't be read.
bool IsOnHand(const DataDir& data, const Session& session, const QString& name);

}  // namespace kladez
