#include "books/directories/GoodsDirectory.h"

#include <algorithm>
#include <utility>

#include "books/directories/GoodsOrder.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr size_t kMostRows = 1000;

bool LedgerHolds(QByteArrayView bytes, QByteArrayView name) {
  for (LineReader reader(bytes); !reader.AtEnd();) {
    if (reader.Peek() == ' ') {
      reader.NextRaw();
      continue;
    }
    const bool same = reader.NextRaw() == name;
    const QByteArrayView quantity = reader.NextRaw();
    reader.NextRaw();  // unit
    if (same && NumberOr(quantity) != 0) return true;
  }
  return false;
}

}  // namespace

GoodsDirectory::GoodsDirectory(const DataDir& data, const Session& session, GoodsView view)
    : data_(data),
      path_(session.Path(files::kGoods)),
      extras_path_(session.Path(files::kGoodsExtras)) {
  Reload(view);
}

bool GoodsDirectory::IsFull() const { return rows_.size() > kMostRows; }

void GoodsDirectory::Reload(GoodsView view) {
  FileState file;
  const QByteArray bytes = ReadWithState(data_, path_, file);
  file_ = file;
  KeepCopy(view == GoodsView::kGoodsOnly ? bytes : QByteArray());
  extras_.emplace(data_, extras_path_);
  Show(bytes, view);
}

void GoodsDirectory::Show(const QByteArray& bytes, GoodsView view) {
  rows_ = view == GoodsView::kGroups ? GoodsRows(bytes) : GoodsRows::ByName(bytes);
  view_ = view;
  saved_.reset();
  renamed_.clear();
}

void GoodsDirectory::ShowGoodsOnly() {
  FileState file;
  const QByteArray on_disk = ReadWithState(data_, path_, file);
  const QByteArray bytes = rows_.Bytes();
  if (bytes == on_disk && !extras_->IsChanged()) {
    file_ = file;
  } else {
    Write(bytes);
  }
  Show(bytes, GoodsView::kGoodsOnly);
  KeepCopy(on_disk);
}

void GoodsDirectory::KeepCopy(const QByteArray& bytes) {
  copy_bytes_ = bytes;
  copy_.reset();
}

GoodsRows& GoodsDirectory::Copy() {
  if (!copy_) copy_ = GoodsRows(copy_bytes_);
  return *copy_;
}

bool GoodsDirectory::IsChanged() const {
  if (view_ == GoodsView::kGoodsOnly) return !renamed_.empty();
  return (saved_ && *saved_ != rows_) || extras_->IsChanged();
}

void GoodsDirectory::BeforeChange() {
  if (!saved_) saved_ = rows_;
}

// Goods of one name share what is kept under it: it stays while one of them has the name.
void GoodsDirectory::TakeExtras(const GoodsRecord& before, const GoodsRecord& after,
                                const std::optional<GoodsExtras>& extras) {
  const GoodsRows& rows = view_ == GoodsView::kGroups ? rows_ : Copy();
  if (before.name != after.name && !before.IsGroup() && rows.RowOfGoods(before.name) < 0) {
    extras_->records.Follow({{before.name, after.IsGroup() ? QString() : after.name}});
  }
  if (extras && !after.IsGroup()) SetExtras(extras_->records, after.name, *extras);
}

GoodsExtras GoodsDirectory::Extras(int row) const {
  const GoodsRecord record = rows_[row];
  QString name = record.name;
  // The latest change first: it may stand on one before it.
  for (auto change = renamed_.rbegin(); change != renamed_.rend(); ++change) {
    if (change->after.name != name) continue;
    if (change->extras) return *change->extras;
    name = change->before.name;
  }
  return ExtrasOf(extras_->records, name);
}

QString GoodsDirectory::OwnerOfBarcode(const QString& barcode, const QString& name) const {
  OwnRecords others = extras_->records;
  SetExtras(others, name, {});
  return GoodsOfBarcode(others, barcode);
}

int GoodsDirectory::Insert(int below, const GoodsRecord& record, const GoodsExtras& extras) {
  BeforeChange();
  if (extras != GoodsExtras()) TakeExtras(record, record, extras);
  const size_t row = below < 0 ? rows_.size() : static_cast<size_t>(below) + 1;
  rows_.Insert(row, record);
  return static_cast<int>(row);
}

int GoodsDirectory::Change(int row, const GoodsRecord& record,
                           const std::optional<GoodsExtras>& extras) {
  BeforeChange();
  const GoodsRecord before = rows_[row];
  const bool other_extras = extras && *extras != Extras(row);
  if (view_ == GoodsView::kGroups) {
    rows_.Set(row, record);
    TakeExtras(before, record, extras);
    return row;
  }
  if (before != record || other_extras) renamed_.push_back({before, record, extras});
  // The goods alone keep themselves in order.
  rows_.Erase(row);
  const QString key = OrderKey(record.name);
  size_t place = 0;
  while (place < rows_.size() && OrderKey(rows_.Text(place, &GoodsRecord::name)) <= key) ++place;
  rows_.Insert(place, record);
  return static_cast<int>(place);
}

int GoodsDirectory::MoveUp(int row) {
  if (view_ == GoodsView::kGoodsOnly || row < 1) return row;
  if (row == 1 && !rows_.IsGroup(row)) return row;
  BeforeChange();
  rows_.Swap(row, row - 1);
  return row - 1;
}

int GoodsDirectory::MoveDown(int row) {
  if (view_ == GoodsView::kGoodsOnly || row < 0 || row + 1 >= static_cast<int>(rows_.size())) {
    return row;
  }
  BeforeChange();
  rows_.Swap(row, row + 1);
  return row + 1;
}

void GoodsDirectory::Remove(int row) {
  BeforeChange();
  const GoodsRecord gone = rows_[row];
  rows_.Erase(row);
  TakeExtras(gone, GoodsRecord(), {});
}

void GoodsDirectory::Sort() {
  BeforeChange();
  rows_ = SortedInGroups(rows_.Records());
  sorted_ = true;
}

void GoodsDirectory::SaveChange(int row) {
  if (view_ == GoodsView::kGroups) return;
  const GoodsRecord changed = rows_[row];
  // An empty name begins every text and would fall on the first group.
  if (changed.name.isEmpty()) return;
  // The first beginning counts, even of a longer name: that is how changes have always been joined.
  GoodsRows& copy = Copy();
  size_t same = 0;
  while (same < copy.size() && !copy.Text(same, &GoodsRecord::name).startsWith(changed.name)) {
    ++same;
  }
  if (same == copy.size()) return;
  copy.Set(same, changed);
  const bool waits = !renamed_.empty() && renamed_.back().after == changed;
  if (waits) TakeExtras(renamed_.back().before, changed, renamed_.back().extras);
  Write(copy.Bytes());
  if (waits) renamed_.pop_back();
}

void GoodsDirectory::Save() {
  Write((view_ == GoodsView::kGroups ? rows_ : Copy()).Bytes());
  saved_.reset();
}

void GoodsDirectory::SaveAll() {
  GoodsRows copy = Copy();
  for (const Renamed& renamed : renamed_) {
    const int same = copy.RowOf(renamed.before);
    if (same >= 0) copy.Set(same, renamed.after);
  }
  std::swap(copy, Copy());
  const OwnRecords extras = extras_->records;
  for (const Renamed& renamed : renamed_) TakeExtras(renamed.before, renamed.after, renamed.extras);
  try {
    Save();
  } catch (...) {
    std::swap(copy, Copy());
    extras_->records = extras;
    throw;
  }
  renamed_.clear();
}

void GoodsDirectory::SaveBeforePick() {
  if (view_ == GoodsView::kGroups) Save();
}

void GoodsDirectory::Write(const QByteArray& bytes) {
  SaveSet save(data_, u"справочник товаров записан"_s);
  save.Write(path_, bytes, file_);
  OwnRecordsFile extras = *extras_;
  extras.Gather(save);
  // Nobody could put them in their old order again.
  if (sorted_) save.CopyFirst();
  save.Commit();
  sorted_ = false;
  extras_.emplace(extras);
}

bool IsOnHand(const DataDir& data, const Session& session, const QString& name) {
  const QByteArray encoded = EncodeText(name);
  return std::any_of(session.warehouses.begin(), session.warehouses.end(),
                     [&](const QString& warehouse) {
                       return LedgerHolds(data.Read(LedgerPath(session, warehouse)), encoded);
                     });
}

}  // namespace kladez
