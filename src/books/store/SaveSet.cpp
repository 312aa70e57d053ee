#include "books/store/SaveSet.h"

#include <QFileInfo>
#include <algorithm>

#include "books/store/Errors.h"
#include "books/store/SaveJournal.h"
#include "books/store/SaveWatch.h"
#include "system/PathNames.h"

namespace kladez {

// What this set makes is found whatever its letter case, as if it lay on the disk already.
QByteArray SaveSet::Target(const QString& path) const {
  QString target = data_.Resolve(path);
  if (QFileInfo::exists(target)) return EncodePath(target);
  for (const Change& change : changes_) {
    if (change.kind != Kind::kWrite && change.kind != Kind::kMakeDirectory) continue;
    const QString made = DecodePath(change.path);
    if (!target.startsWith(made, Qt::CaseInsensitive)) continue;
    if (target.size() > made.size() && target[made.size()] != u'/') continue;
    target.replace(0, made.size(), made);
  }
  return EncodePath(target);
}

SaveSet::Change* SaveSet::LastChangeOf(const QByteArray& target) {
  const auto found = std::find_if(changes_.rbegin(), changes_.rend(), [&](const Change& change) {
    return change.path == target || change.to == target;
  });
  return found == changes_.rend() ? nullptr : &*found;
}

void SaveSet::Write(const QString& path, QByteArray bytes) {
  QByteArray target = Target(path);
  Change* last = LastChangeOf(target);
  if (last != nullptr && last->kind == Kind::kWrite) {
    last->bytes = std::move(bytes);
  } else {
    changes_.push_back(
        {.kind = Kind::kWrite, .path = std::move(target), .to = {}, .bytes = std::move(bytes)});
  }
}

void SaveSet::Write(const QString& path, QByteArray bytes, FileState& read) {
  expected_.push_back({Target(path), read, &read});
  Write(path, std::move(bytes));
  LastChangeOf(expected_.back().path)->only_new = read.known && !read.exists;
}

void SaveSet::WriteNew(const QString& path, QByteArray bytes) {
  Write(path, std::move(bytes));
  changes_.back().only_new = true;
}

void SaveSet::Expect(const QString& path, const FileState& read) {
  expected_.push_back({Target(path), read});
}

void SaveSet::WriteInPieces(const QString& path, Contents contents) {
  changes_.push_back({.kind = Kind::kWrite,
                      .path = Target(path),
                      .to = {},
                      .bytes = {},
                      .contents = std::move(contents)});
}

void SaveSet::Append(const QString& path, QByteArrayView lines) {
  const Change* last = LastChangeOf(Target(path));
  QByteArray bytes;
  if (last != nullptr && last->kind == Kind::kWrite) {
    bytes = last->bytes;
  } else {
    FileState read;
    bytes = ReadWithState(data_, path, read);
    Expect(path, read);
  }
  // The last line of a file that was made by hand may lack its end.
  if (!bytes.isEmpty() && !bytes.endsWith("\r\n")) bytes.append("\r\n");
  Write(path, bytes.append(lines));
}

void SaveSet::Delete(const QString& path) {
  changes_.push_back({.kind = Kind::kDelete, .path = Target(path), .to = {}, .bytes = {}});
}

void SaveSet::DeleteTree(const QString& path) {
  changes_.push_back({.kind = Kind::kDeleteTree, .path = Target(path), .to = {}, .bytes = {}});
}

void SaveSet::MakeDirectory(const QString& path) {
  const QByteArray target = Target(path);
  const Change* last = LastChangeOf(target);
  const bool made = last != nullptr && last->kind == Kind::kMakeDirectory;
  if (!made && !QFileInfo(DecodePath(target)).isDir()) MakeNewDirectory(path);
}

void SaveSet::MakeNewDirectory(const QString& path) {
  changes_.push_back({.kind = Kind::kMakeDirectory, .path = Target(path), .to = {}, .bytes = {}});
}

void SaveSet::RenameDirectory(const QString& from, const QString& to) {
  QByteArray source = Target(from);
  QByteArray target = Target(to);
  if (target == source) {
    // The resolver finds the old name again where only the letter case changes.
    QStringView name(to);
    if (name.endsWith(u'\\')) name.chop(1);
    name = name.sliced(name.lastIndexOf(u'\\') + 1);
    target = target.left(target.lastIndexOf('/') + 1) + EncodePath(name.toString());
  }
  changes_.push_back(
      {.kind = Kind::kRename, .path = std::move(source), .to = std::move(target), .bytes = {}});
}

bool SaveSet::NeedsCopy() const {
  return copy_first_ || std::any_of(changes_.begin(), changes_.end(), [](const Change& change) {
           return change.kind == Kind::kDeleteTree || change.kind == Kind::kRename;
         });
}

void SaveSet::Commit() {
  if (changes_.empty()) return;
  SaveWatch* const watch = data_.Watch();
  if (watch != nullptr) watch->BeforeSave(*this);
  SaveJournal(data_).Commit(changes_, expected_);
  if (watch != nullptr) watch->AfterSave(*this);
  for (const Expectation& expected : expected_) {
    if (expected.written == nullptr) continue;
    const Change* last = LastChangeOf(expected.path);
    // What can't be looked at now is on the disk all the same; the next save will refuse.
    *expected.written = {};
    IgnoreErrors(
        [&] { *expected.written = StateOfWritten(expected.path, Fingerprint(last->bytes)); });
  }
  changes_.clear();
  expected_.clear();
}

void SaveSet::Recover(const DataDir& data) { SaveJournal(data).Recover(); }

}  // namespace kladez
