#include "store/SaveSet.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "store/Errors.h"
#include "store/SaveJournal.h"

namespace kladez {

void SaveSet::Add(Kind kind, const QString& path, QByteArray bytes) {
  changes_.push_back({.kind = kind,
                      .path = QFile::encodeName(data_.Resolve(path)),
                      .to = {},
                      .fresh = false,
                      .bytes = std::move(bytes)});
}

void SaveSet::Write(const QString& path, QByteArray bytes) {
  Add(Kind::kWrite, path, std::move(bytes));
}

void SaveSet::Append(const QString& path, QByteArrayView bytes) {
  const QByteArray target = QFile::encodeName(data_.Resolve(path));
  const auto same = std::find_if(changes_.begin(), changes_.end(), [&](const Change& change) {
    return change.kind == Kind::kWrite && change.path == target;
  });
  QByteArray whole = same != changes_.end() ? std::move(same->bytes) : data_.Read(path);
  if (!whole.isEmpty() && !whole.endsWith("\r\n")) whole.append("\r\n");
  whole.append(bytes);
  if (same != changes_.end()) {
    same->bytes = std::move(whole);
  } else {
    Add(Kind::kWrite, path, std::move(whole));
  }
}

void SaveSet::Delete(const QString& path) { Add(Kind::kDelete, path); }

void SaveSet::DeleteTree(const QString& path) { Add(Kind::kDelete, path); }

void SaveSet::MakeDirectory(const QString& path) {
  if (!QFileInfo(data_.Resolve(path)).isDir()) Add(Kind::kMakeDirectory, path);
}

void SaveSet::RenameDirectory(const QString& from, const QString& to) {
  Add(Kind::kRename, from);
  // The resolver would find the old name again where only the letter case changes.
  const QString target = data_.Resolve(to);
  const QString exact = QFileInfo(target).path() + u'/' + to.mid(to.lastIndexOf(u'\\') + 1);
  const bool case_only = QFile::encodeName(target) == changes_.back().path;
  changes_.back().to = QFile::encodeName(case_only ? exact : target);
}

void SaveSet::Commit() {
  if (changes_.empty()) return;
  SaveJournal journal(data_);
  try {
    journal.Stage(changes_);
    if (changes_.size() > 1) journal.MakeFinal(changes_);
  } catch (...) {
    journal.Discard();
    throw;
  }
  if (changes_.size() == 1) {
    try {
      journal.CarryOutAlone(changes_.front());
    } catch (...) {
      journal.Discard();
      throw;
    }
  } else {
    try {
      journal.CarryOut(changes_);
    } catch (...) {
      journal.TakeBack(changes_);
      throw;
    }
  }
  journal.Discard();
  changes_.clear();
}

void SaveSet::Recover(const DataDir& data) { SaveJournal(data).Recover(); }

}  // namespace kladez
