#include "store/SaveJournal.h"

#include <sys/stat.h>

#include <QFile>
#include <cerrno>
#include <fstream>
#include <set>

#include "store/Errors.h"
#include "store/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using syscalls::Exists;
using Kind = SaveSet::Kind;
using Change = SaveSet::Change;

void Check(int error, const QByteArray& path) {
  if (error != 0) ThrowFileError(u"Не удалось записать"_s, QFile::decodeName(path), error);
}

QByteArray ParentOf(const QByteArray& path) { return path.left(path.lastIndexOf('/')); }

// The manifest holds paths relative to the data directory, which may be reached by another name
// after the crash; fields are parted by NUL, which no path holds.
QByteArray ManifestBytes(std::span<const Change> changes, const QByteArray& root) {
  QByteArray bytes;
  const auto relative = [&](const QByteArray& path) { return path.mid(root.size() + 1); };
  for (const Change& change : changes) {
    bytes += QByteArray::number(static_cast<int>(change.kind)) + '\0';
    bytes += relative(change.path) + '\0' + relative(change.to) + '\0';
    bytes += change.fresh ? "1" : "0";
    bytes += '\0';
  }
  return bytes + "end";
}

std::vector<Change> ReadManifest(const QByteArray& path, const QByteArray& root) {
  QFile file(QFile::decodeName(path));
  if (!file.open(QIODevice::ReadOnly))
    ThrowFileError(u"Не удалось прочитать"_s, file.fileName(), EIO);
  const QList<QByteArray> fields = file.readAll().split('\0');
  std::vector<Change> changes;
  if (fields.last() != "end") return changes;
  for (qsizetype i = 0; i + 4 < fields.size(); i += 4) {
    changes.push_back({.kind = static_cast<Kind>(fields[i].toInt()),
                       .path = root + '/' + fields[i + 1],
                       .to = root + '/' + fields[i + 2],
                       .fresh = fields[i + 3] == "1",
                       .bytes = {}});
  }
  return changes;
}

void SyncParents(std::span<const Change> changes) {
  std::set<QByteArray> parents;
  for (const Change& change : changes) {
    parents.insert(ParentOf(change.path));
    if (change.kind == Kind::kRename) parents.insert(ParentOf(change.to));
    if (change.kind == Kind::kMakeDirectory) parents.insert(change.path);
  }
  for (const QByteArray& parent : parents) {
    if (Exists(parent)) Check(syscalls::SyncDirectory(parent), parent);
  }
}

}  // namespace

SaveJournal::SaveJournal(const DataDir& data)
    : root_(QFile::encodeName(data.Root())), stage_(root_ + "/.kladez-save") {}

void SaveJournal::Stage(std::vector<Change>& changes) {
  // What a failed clean-up left would be taken for this set's own.
  if (Exists(stage_)) Recover();
  Check(syscalls::MakeDirectory(stage_), stage_);
  std::set<QByteArray> made;
  for (size_t i = 0; i < changes.size(); ++i) {
    Change& change = changes[i];
    const QByteArray parent = ParentOf(change.path);
    if (!made.contains(parent)) Check(syscalls::WriteRefusal(parent), parent);
    StageOne(i, change);
    if (change.kind == Kind::kMakeDirectory) made.insert(change.path);
  }
}

void SaveJournal::StageOne(size_t index, Change& change) {
  struct stat status;
  const bool exists = ::lstat(change.path.constData(), &status) == 0;
  change.fresh = !exists;
  switch (change.kind) {
    case Kind::kWrite:
      if (exists) {
        if (!S_ISREG(status.st_mode)) Check(S_ISDIR(status.st_mode) ? EISDIR : ELOOP, change.path);
        Check(syscalls::WriteRefusal(change.path), change.path);
        Check(syscalls::KeepCopy(change.path, Old(index)), change.path);
      }
      Check(syscalls::WriteNewFile(New(index), change.bytes, exists ? status.st_mode & 0777 : 0),
            change.path);
      break;
    case Kind::kDelete:
      if (!exists) Check(ENOENT, change.path);
      break;
    case Kind::kMakeDirectory:
      if (exists) Check(EEXIST, change.path);
      break;
    case Kind::kRename:
      if (!exists) Check(ENOENT, change.path);
      if (Exists(change.to)) Check(EEXIST, change.to);
      break;
  }
}

void SaveJournal::MakeFinal(std::span<const Change> changes) {
  const QByteArray draft = Manifest() + ".draft";
  Check(syscalls::WriteNewFile(draft, ManifestBytes(changes, root_), 0), draft);
  Check(syscalls::SyncDirectory(root_), root_);
  Check(syscalls::Rename(draft, Manifest()), Manifest());
  Check(syscalls::SyncDirectory(stage_), stage_);
}

void SaveJournal::CarryOut(std::span<const Change> changes) {
  for (size_t i = 0; i < changes.size(); ++i) MakeOne(i, changes[i]);
  SyncParents(changes);
}

void SaveJournal::CarryOutAlone(const Change& change) {
  MakeOne(0, change);
  SyncParents({&change, 1});
}

void SaveJournal::MakeOne(size_t index, const Change& change) {
  switch (change.kind) {
    case Kind::kWrite:
      if (Exists(New(index))) Check(syscalls::Rename(New(index), change.path), change.path);
      break;
    case Kind::kDelete:
      if (Exists(change.path) && !Exists(Old(index))) {
        Check(syscalls::Rename(change.path, Old(index)), change.path);
      }
      break;
    case Kind::kMakeDirectory:
      if (!Exists(change.path)) Check(syscalls::MakeDirectory(change.path), change.path);
      break;
    case Kind::kRename:
      if (Exists(change.path)) Check(syscalls::RenameToNew(change.path, change.to), change.to);
      break;
  }
}

void SaveJournal::TakeBack(std::span<const Change> changes) {
  // A crash while taking back must go on taking back, not carry the set out.
  if (Exists(Manifest())) {
    Check(syscalls::Rename(Manifest(), TakingBack()), Manifest());
    Check(syscalls::SyncDirectory(stage_), stage_);
  }
  for (size_t i = changes.size(); i-- > 0;) TakeBackOne(i, changes[i]);
  SyncParents(changes);
  Discard();
}

void SaveJournal::TakeBackOne(size_t index, const Change& change) {
  switch (change.kind) {
    case Kind::kWrite:
      if (Exists(New(index))) break;  // was not made
      if (!change.fresh) {
        if (Exists(Old(index))) Check(syscalls::Rename(Old(index), change.path), change.path);
      } else if (Exists(change.path)) {
        Check(syscalls::Unlink(change.path), change.path);
      }
      break;
    case Kind::kDelete:
      if (Exists(Old(index))) Check(syscalls::Rename(Old(index), change.path), change.path);
      break;
    case Kind::kMakeDirectory:
      if (Exists(change.path)) Check(syscalls::RemoveDirectory(change.path), change.path);
      break;
    case Kind::kRename:
      if (!Exists(change.path) && Exists(change.to)) {
        Check(syscalls::RenameToNew(change.to, change.path), change.path);
      }
      break;
  }
}

void SaveJournal::Discard() {
  // The manifest goes first and for good: a later crash must not carry out an old set again.
  for (const QByteArray& mark : {Manifest(), TakingBack()}) {
    if (Exists(mark) && syscalls::Unlink(mark) == 0) syscalls::SyncDirectory(stage_);
  }
  // What stays here after an error is removed by the next Recover; the set itself is whole.
  syscalls::RemoveTree(stage_);
}

void SaveJournal::Recover() {
  if (Exists(TakingBack())) {
    TakeBack(ReadManifest(TakingBack(), root_));
  } else if (Exists(Manifest())) {
    CarryOut(ReadManifest(Manifest(), root_));
    Discard();
  } else if (Exists(stage_)) {
    Discard();
    if (Exists(stage_)) Check(syscalls::RemoveTree(stage_), stage_);
  }
}

}  // namespace kladez
