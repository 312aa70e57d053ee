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
    : data_(data), path_(session.Path(files::kGoods)) {
  Reload(view);
}

bool GoodsDirectory::IsFull() const { return rows_.size() > kMostRows; }

void GoodsDirectory::Reload(GoodsView view) {
  FileState file;
  std::vector<GoodsRecord> records = ReadGoods(ReadWithState(data_, path_, file));
  file_ = file;
  copy_ = view == GoodsView::kGoodsOnly ? records : std::vector<GoodsRecord>();
  Show(std::move(records), view);
}

void GoodsDirectory::Show(std::vector<GoodsRecord> records, GoodsView view) {
  rows_ = std::move(records);
  view_ = view;
  saved_.reset();
  renamed_.clear();
  if (view == GoodsView::kGroups) return;
  std::erase_if(rows_, [](const GoodsRecord& record) { return record.IsGroup(); });
  rows_ = SortedByName(std::move(rows_));
}

void GoodsDirectory::ShowGoodsOnly() {
  FileState file;
  std::vector<GoodsRecord> copy = ReadGoods(ReadWithState(data_, path_, file));
  const QByteArray bytes = WriteGoods(rows_);
  Write(bytes);
  Show(ReadGoods(bytes), GoodsView::kGoodsOnly);
  copy_ = std::move(copy);
}

bool GoodsDirectory::IsChanged() const {
  return view_ == GoodsView::kGroups ? saved_ && *saved_ != rows_ : !renamed_.empty();
}

void GoodsDirectory::BeforeChange() {
  if (!saved_) saved_ = rows_;
}

int GoodsDirectory::Insert(int below, const GoodsRecord& record) {
  BeforeChange();
  const int row = below < 0 ? static_cast<int>(rows_.size()) : below + 1;
  rows_.insert(rows_.begin() + row, record);
  return row;
}

int GoodsDirectory::Change(int row, const GoodsRecord& record) {
  BeforeChange();
  const GoodsRecord before = std::exchange(rows_[row], record);
  if (view_ == GoodsView::kGroups) return row;
  if (before != record) renamed_.push_back({before, record});
  // The goods alone keep themselves in order.
  rows_.erase(rows_.begin() + row);
  const QString key = OrderKey(record.name);
  const auto place = std::find_if(rows_.begin(), rows_.end(), [&](const GoodsRecord& other) {
    return key < OrderKey(other.name);
  });
  return static_cast<int>(rows_.insert(place, record) - rows_.begin());
}

int GoodsDirectory::MoveUp(int row) {
  if (view_ == GoodsView::kGoodsOnly || row < 1) return row;
  if (row == 1 && !rows_[row].IsGroup()) return row;
  BeforeChange();
  std::swap(rows_[row], rows_[row - 1]);
  return row - 1;
}

int GoodsDirectory::MoveDown(int row) {
  if (view_ == GoodsView::kGoodsOnly || row < 0 || row + 1 >= static_cast<int>(rows_.size())) {
    return row;
  }
  BeforeChange();
  std::swap(rows_[row], rows_[row + 1]);
  return row + 1;
}

void GoodsDirectory::Remove(int row) {
  BeforeChange();
  rows_.erase(rows_.begin() + row);
}

void GoodsDirectory::Sort() {
  BeforeChange();
  rows_ = SortedInGroups(rows_);
}

void GoodsDirectory::SaveChange(int row) {
  if (view_ == GoodsView::kGroups) return;
  const GoodsRecord& changed = rows_[row];
  // An empty name begins every text and would fall on the first group.
  if (changed.name.isEmpty()) return;
  // The first beginning counts, even of a longer name: that is how changes have always been joined.
  const auto same = std::find_if(copy_.begin(), copy_.end(), [&](const GoodsRecord& record) {
    return record.name.startsWith(changed.name);
  });
  if (same == copy_.end()) return;
  *same = changed;
  Write(WriteGoods(copy_));
  if (!renamed_.empty() && renamed_.back().after == changed) renamed_.pop_back();
}

void GoodsDirectory::Save() {
  Write(WriteGoods(view_ == GoodsView::kGroups ? rows_ : copy_));
  saved_.reset();
}

void GoodsDirectory::SaveAll() {
  std::vector<GoodsRecord> copy = copy_;
  for (const Renamed& renamed : renamed_) {
    const auto same = std::find(copy.begin(), copy.end(), renamed.before);
    if (same != copy.end()) *same = renamed.after;
  }
  std::swap(copy, copy_);
  try {
    Save();
  } catch (...) {
    std::swap(copy, copy_);
    throw;
  }
  renamed_.clear();
}

void GoodsDirectory::SaveBeforePick() {
  if (view_ == GoodsView::kGroups) Save();
}

void GoodsDirectory::Write(const QByteArray& bytes) {
  SaveSet save(data_);
  save.Write(path_, bytes, file_);
  save.Commit();
}

bool IsOnHand(const DataDir& data, const Session& session, const QString& name) {
  const QByteArray encoded = EncodeText(name);
  return std::any_of(session.warehouses.begin(), session.warehouses.end(),
                     [&](const QString& warehouse) {
                       return LedgerHolds(data.Read(LedgerPath(session, warehouse)), encoded);
                     });
}

}  // namespace kladez
