#include "books/store/SaveJournal.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <optional>
#include <set>

#include "books/store/Errors.h"
#include "books/store/SaveManifest.h"
#include "books/store/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using Kind = SaveSet::Kind;
using Change = SaveSet::Change;

void Check(int error, const QByteArray& path) {
  if (error != 0) ThrowFileError(u"Не удалось записать"_s, QFile::decodeName(path), error);
}

// What can't be looked at is not taken for absent: a step would be passed over.
std::optional<struct stat> Status(const QByteArray& path) {
  struct stat status;
  if (::lstat(path.constData(), &status) == 0) return status;
  if (errno != ENOENT && errno != ENOTDIR) Check(errno, path);
  return std::nullopt;
}

QByteArray ParentOf(const QByteArray& path) { return path.left(path.lastIndexOf('/')); }

void RefuseOtherThanFile(const struct stat& status, const QByteArray& path) {
  if (!S_ISREG(status.st_mode)) Check(S_ISDIR(status.st_mode) ? EISDIR : EPERM, path);
  Check(syscalls::WriteRefusal(path), path);
}

void RefuseStale(std::span<const SaveSet::Expectation> expected) {
  for (const auto& [path, state, written] : expected) {
    if (IsStill(state, path)) continue;
    throw StaleFile(QFile::decodeName(path), state.known && !state.exists);
  }
}

void SyncParents(std::span<const Change> changes) {
  std::set<QByteArray> parents;
  for (const Change& change : changes) {
    parents.insert(ParentOf(change.path));
    if (change.kind == Kind::kRename) parents.insert(ParentOf(change.to));
    if (change.kind == Kind::kMakeDirectory) parents.insert(change.path);
  }
  for (const QByteArray& parent : parents) {
    if (Status(parent)) Check(syscalls::SyncDirectory(parent), parent);
  }
}

}  // namespace

SaveJournal::SaveJournal(const DataDir& data)
    : root_(QFile::encodeName(data.Root())), stage_(root_ + '/' + kStagingName), lock_(root_) {}

void SaveJournal::Commit(std::vector<Change>& changes,
                         std::span<const SaveSet::Expectation> expected) {
  if (Heal()) {
    ThrowFileError(
        u"Прежняя запись прервалась; её файлы сейчас приведены в порядок. "
        u"Откройте окно заново и повторите"_s,
        QFile::decodeName(root_), ECANCELED);
  }
  try {
    RefuseStale(expected);
    Stage(changes);
    // Staging takes its time, and an editor minds no lock.
    RefuseStale(expected);
    // One change is all or nothing by itself.
    if (changes.size() > 1) MakeFinal(changes);
  } catch (...) {
    Discard();
    throw;
  }
  try {
    CarryOut(changes);
  } catch (...) {
    // What can't be taken back now is healed before the next save.
    const auto take_back = [&] { TakeBack(changes); };
    if (!IgnoreErrors(take_back)) IgnoreErrors(take_back);
    throw;
  }
  if (Discard() != 0) Discard();
}

void SaveJournal::Recover() { Heal(); }

bool SaveJournal::Heal() {
  const auto status = Status(stage_);
  if (!status) return false;
  bool touched = S_ISDIR(status->st_mode);
  if (touched && Status(TakingBack())) {
    TakeBack(ReadManifest(TakingBack(), root_));
  } else if (touched && Status(Manifest())) {
    CarryOut(ReadManifest(Manifest(), root_));
  } else {
    touched = false;
  }
  Check(Discard(), stage_);
  return touched;
}

void SaveJournal::Stage(std::vector<Change>& changes) {
  Check(syscalls::MakeDirectory(stage_), stage_);
  std::set<QByteArray> made;
  const auto check_parent = [&](const QByteArray& path) {
    const QByteArray parent = ParentOf(path);
    if (!made.contains(parent)) Check(syscalls::WriteRefusal(parent), parent);
  };
  for (size_t i = 0; i < changes.size(); ++i) {
    Change& change = changes[i];
    check_parent(change.path);
    if (change.kind == Kind::kRename) check_parent(change.to);
    StageOne(i, change);
    if (change.kind == Kind::kMakeDirectory) made.insert(change.path);
  }
}

void SaveJournal::StageOne(size_t index, Change& change) {
  const auto status = Status(change.path);
  change.fresh = !status;
  switch (change.kind) {
    case Kind::kWrite:
      StageWrite(index, change);
      break;
    case Kind::kDelete:
      if (!status) Check(ENOENT, change.path);
      RefuseOtherThanFile(*status, change.path);
      break;
    case Kind::kDeleteTree:
      if (!status) Check(ENOENT, change.path);
      break;
    case Kind::kMakeDirectory:
      if (status) Check(EEXIST, change.path);
      break;
    case Kind::kRename:
      if (!status) Check(ENOENT, change.path);
      if (Status(change.to)) Check(EEXIST, change.to);
      break;
  }
}

void SaveJournal::StageWrite(size_t index, Change& change) {
  const auto status = Status(change.path);
  unsigned mode = 0;
  if (status && change.only_new) Check(EEXIST, change.path);
  if (status) {
    RefuseOtherThanFile(*status, change.path);
    Check(syscalls::KeepCopy(change.path, Old(index)), change.path);
    mode = status->st_mode & 0777;
  }
  syscalls::NewFile file(New(index));
  const ByteSink write = [&](QByteArrayView piece) { Check(file.Write(piece), change.path); };
  Check(file.Create(mode), change.path);
  if (change.contents) {
    change.contents(write);
  } else {
    write(change.bytes);
  }
  Check(file.Sync(), change.path);
}

void SaveJournal::MakeFinal(std::span<const Change> changes) {
  const QByteArray draft = Manifest() + ".draft";
  Check(syscalls::WriteNewFile(draft, ManifestBytes(changes, root_), 0), draft);
  // The manifest must not reach the disk before what it speaks of.
  Check(syscalls::SyncDirectory(stage_), stage_);
  Check(syscalls::SyncDirectory(root_), root_);
  Check(syscalls::Rename(draft, Manifest()), Manifest());
  Check(syscalls::SyncDirectory(stage_), stage_);
}

void SaveJournal::CarryOut(std::span<const Change> changes) {
  for (size_t i = 0; i < changes.size(); ++i) MakeOne(i, changes[i]);
  SyncParents(changes);
}

void SaveJournal::MakeOne(size_t index, const Change& change) {
  switch (change.kind) {
    case Kind::kWrite:
      if (!Status(New(index))) break;
      Check(change.only_new ? syscalls::RenameToNew(New(index), change.path)
                            : syscalls::Rename(New(index), change.path),
            change.path);
      break;
    case Kind::kDelete:
    case Kind::kDeleteTree:
      if (Status(change.path) && !Status(Old(index))) {
        Check(syscalls::MoveAway(change.path, Old(index)), change.path);
      }
      break;
    case Kind::kMakeDirectory:
      if (!Status(change.path)) Check(syscalls::MakeDirectory(change.path), change.path);
      break;
    case Kind::kRename:
      if (Status(change.path)) Check(syscalls::RenameToNew(change.path, change.to), change.to);
      break;
  }
}

void SaveJournal::TakeBack(std::span<const Change> changes) {
  // A crash while taking back must go on taking back, not carry the set out.
  if (Status(Manifest())) {
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
      if (Status(New(index))) break;  // was not made
      if (!change.fresh) {
        if (Status(Old(index))) Check(syscalls::Rename(Old(index), change.path), change.path);
      } else if (Status(change.path)) {
        Check(syscalls::Unlink(change.path), change.path);
      }
      break;
    case Kind::kDelete:
    case Kind::kDeleteTree:
      if (Status(Old(index))) Check(syscalls::Rename(Old(index), change.path), change.path);
      break;
    case Kind::kMakeDirectory:
      if (Status(change.path)) {
        const int error = syscalls::RemoveDirectory(change.path);
        // What another program has put there meanwhile is not ours to remove.
        if (error != ENOTEMPTY && error != EEXIST) Check(error, change.path);
      }
      break;
    case Kind::kRename:
      if (!Status(change.path) && Status(change.to)) {
        Check(syscalls::RenameToNew(change.to, change.path), change.path);
      }
      break;
  }
}

int SaveJournal::Discard() {
  // The marks go first and for good. Where one stays, all stays, so that Recover may repeat the
  // set; where only other files stay, Recover throws them away.
  for (const QByteArray& mark : {Manifest(), TakingBack()}) {
    if (::access(mark.constData(), F_OK) != 0) continue;
    if (const int error = syscalls::Unlink(mark)) return error;
    if (const int error = syscalls::SyncDirectory(stage_)) return error;
  }
  return syscalls::RemoveTree(stage_);
}

}  // namespace kladez
