#include "books/store/SaveJournal.h"

#include <cerrno>
#include <optional>
#include <set>

#include "books/store/Errors.h"
#include "books/store/Notes.h"
#include "books/store/SaveManifest.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using Kind = SaveSet::Kind;
using Change = SaveSet::Change;

void Check(int error, const QByteArray& path) {
  if (error != 0) ThrowFileError(u"Не удалось записать"_s, DecodePath(path), error);
}

// What can't be looked at is not taken for absent: a step would be passed over.
std::optional<FileStatus> Status(const QByteArray& path) {
  FileStatus status;
  const int error = syscalls::Look(path, &status);
  if (error == 0) return status;
  if (error != ENOENT && error != ENOTDIR) Check(error, path);
  return std::nullopt;
}

QByteArray ParentOf(const QByteArray& path) { return path.left(path.lastIndexOf('/')); }

void RefuseOtherThanFile(const FileStatus& status, const QByteArray& path) {
  if (!status.IsFile()) Check(status.IsDirectory() ? EISDIR : EPERM, path);
  Check(syscalls::WriteRefusal(path), path);
}

void RefuseStale(std::span<const SaveSet::Expectation> expected) {
  for (const auto& [path, state, written] : expected) {
    if (IsStill(state, path)) continue;
    throw StaleFile(DecodePath(path), state.known && !state.exists);
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
    : root_(EncodePath(data.Root())), stage_(root_), lock_(root_) {}

void SaveJournal::Commit(std::vector<Change>& changes,
                         std::span<const SaveSet::Expectation> expected) {
  if (Heal()) {
    ThrowFileError(
        u"Прежняя запись прервалась; её файлы сейчас приведены в порядок. "
        u"Откройте окно заново и повторите"_s,
        DecodePath(root_), ECANCELED);
  }
  try {
    RefuseStale(expected);
    Stage(changes);
    // Staging takes its time, and an editor minds no lock.
    RefuseStale(expected);
    // One change is all or nothing by itself.
    if (changes.size() > 1) MakeFinal(changes, expected);
  } catch (const std::filesystem::filesystem_error& error) {
    // A list of changes that can't be removed any more is carried out by the next start.
    if (Discard() != 0 && Discard() != 0 && syscalls::Exists(stage_.Manifest())) Tell(error);
    throw;
  } catch (...) {
    Discard();
    throw;
  }
  try {
    CarryOut(changes);
  } catch (const std::filesystem::filesystem_error& error) {
    // What can't be taken back now is healed before the next save.
    const auto take_back = [&] { TakeBack(changes); };
    const bool taken_back = IgnoreErrors(take_back) || IgnoreErrors(take_back);
    if (taken_back || !IsDone(changes)) Tell(error);
    AddNote(
        u"Записано, но диск при этом сообщил об ошибке. Повторять команду не нужно; "
        u"проверьте диск и сделайте копию базы\n"_s +
        ErrorText(error));
    return;
  }
  // A list that a power cut brings back does nothing where it tells all.
  const bool for_good = !TellsAll(changes);
  if (Discard(for_good) != 0) Discard(for_good);
}

// What a second look at the disk shows after a save that could neither be ended nor taken back.
bool SaveJournal::IsDone(std::span<const Change> changes) {
  bool done = false;
  IgnoreErrors([&] {
    if (Status(stage_.TakingBack())) return;
    done = true;
    for (size_t i = 0; i < changes.size(); ++i) done = done && IsMade(i, changes[i]);
  });
  return done;
}

bool SaveJournal::IsMade(size_t index, const Change& change) {
  switch (change.kind) {
    case Kind::kWrite:
      if (Status(stage_.New(index))) return false;
      return change.fresh ? Status(change.path).has_value() : Status(stage_.Old(index)).has_value();
    case Kind::kDelete:
    case Kind::kDeleteTree:
      return Status(stage_.Old(index)).has_value();
    case Kind::kMakeDirectory:
      return Status(change.path).has_value();
    case Kind::kRename:
      return !Status(change.path) && Status(change.to);
  }
  Q_UNREACHABLE();
}

void SaveJournal::Tell(const std::filesystem::filesystem_error& error) {
  bool carried_on = false, taken_back = false;
  IgnoreErrors([&] {
    carried_on = Status(stage_.Manifest()).has_value();
    taken_back = Status(stage_.TakingBack()).has_value();
  });
  const QString state =
      taken_back   ? u"Не удалось записать; следующий запуск программы вернёт всё, как было"_s
      : carried_on ? u"Команда записана не до конца; следующий запуск программы её закончит, "
                     u"повторять её не нужно"_s
                   : u"На диске осталось прежнее, команда не записана"_s;
  ThrowFileError(state, DecodePath(QByteArray::fromStdString(error.path1().string())),
                 error.code().value());
}

void SaveJournal::Recover() { Heal(); }

bool SaveJournal::Heal() {
  bool touched = false;
  for (const auto form : {SaveStage::Form::kDirectory, SaveStage::Form::kFlat}) {
    touched = HealForm(form) || touched;
  }
  Check(Discard(), root_);
  return touched;
}

bool SaveJournal::HealForm(SaveStage::Form form) {
  stage_ = SaveStage(root_, form);
  if (!stage_.IsThere()) return false;
  if (Status(stage_.TakingBack())) {
    TakeBack(Interrupted(stage_.TakingBack()));
    return true;
  }
  if (!Status(stage_.Manifest())) return false;
  const std::vector<Change> changes = Interrupted(stage_.Manifest());
  if (NeverBegan(changes)) return false;
  CarryOut(changes);
  return true;
}

bool SaveJournal::NeverBegan(std::span<const Change> changes) {
  for (size_t i = 0; i < changes.size(); ++i) {
    const Change& change = changes[i];
    // What somebody else has changed since is not as it was, and counts as made.
    if (change.before.isEmpty() || Status(stage_.New(i))) continue;
    if (WhatIsThere(change.path) == change.before) return true;
  }
  return false;
}

// The changes of a list that a crash left. One that can't be followed is no reason to stop each
// start: it is put aside, with what was to be written, and told.
std::vector<Change> SaveJournal::Interrupted(const QByteArray& manifest) {
  try {
    auto [key, changes] = ReadManifest(manifest, root_);
    stage_.SetKey(key);
    for (size_t i = 0; i < changes.size(); ++i) RefuseForeign(i, changes[i]);
    return changes;
  } catch (const std::filesystem::filesystem_error& error) {
    // A disk that can't be read now may be read at the next start.
    if (error.code().value() == EIO || error.code().value() == EACCES) throw;
    PutAside(error);
  }
}

// Staged files are plain ones, and no path leads through a link.
void SaveJournal::RefuseForeign(size_t index, const Change& change) {
  const auto refuse_links = [](const QByteArray& path) {
    const QByteArray parent = ParentOf(path);
    FileStatus status;
    const int error = syscalls::Look(path, &status);
    if (error != 0 && error != ENOENT) Check(error == ENOTDIR ? ELOOP : error, parent);
  };
  refuse_links(change.path);
  if (change.kind == Kind::kRename) refuse_links(change.to);
  if (change.kind != Kind::kWrite) return;
  for (const QByteArray& staged : {stage_.New(index), stage_.Old(index)}) {
    const auto status = Status(staged);
    if (status && !status->IsFile()) Check(EBADMSG, staged);
  }
}

void SaveJournal::PutAside(const std::filesystem::filesystem_error& error) {
  QByteArray aside;
  for (int number = 1;; ++number) {
    aside = root_ + '/' + EncodePath(u"Прерванная запись %1"_s.arg(number));
    if (syscalls::Exists(aside)) continue;
    const int failed = stage_.PutAside(aside);
    if (failed == EEXIST) continue;
    Check(failed, aside);
    break;
  }
  syscalls::SyncDirectory(root_);
  ThrowFileError(
      u"Запись, прерванную в прошлый раз, закончить нельзя: её список изменений "
      u"повреждён. Что было записать, лежит в каталоге «%1». Проверьте последние "
      u"документы и остатки; если чего-то нет, восстановите базу из копии"_s.arg(
          DecodePath(aside.mid(root_.size() + 1))),
      DecodePath(QByteArray::fromStdString(error.path1().string())), error.code().value());
}

void SaveJournal::Stage(std::vector<Change>& changes) {
  stage_ = SaveStage(root_);
  stage_.SetKey(SaveStage::NewKey());
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
    Check(syscalls::KeepCopy(change.path, stage_.Old(index)), change.path);
    mode = status->mode & 0777;
  }
  syscalls::NewFile file(stage_.New(index));
  const ByteSink write = [&](QByteArrayView piece) { Check(file.Write(piece), change.path); };
  Check(file.Create(mode), change.path);
  if (change.contents) {
    change.contents(write);
  } else {
    write(change.bytes);
  }
  Check(file.Sync(), change.path);
}

void SaveJournal::MakeFinal(std::vector<Change>& changes,
                            std::span<const SaveSet::Expectation> expected) {
  const bool tells_all = TellsAll(changes);
  if (tells_all) TellBefore(changes, expected);
  const QByteArray bytes = ManifestBytes(stage_.Key(), changes, root_);
  if (bytes.size() > kLongestManifest) Check(EFBIG, stage_.Draft());
  Check(syscalls::WriteNewFile(stage_.Draft(), bytes, 0), stage_.Draft());
  // The manifest must not reach the disk before what it speaks of, where it does not tell whether
  // all of that is there.
  if (!tells_all) Check(stage_.Sync(), root_);
  Check(syscalls::Rename(stage_.Draft(), stage_.Manifest()), stage_.Manifest());
  Check(stage_.Sync(), root_);
}

void SaveJournal::CarryOut(std::span<const Change> changes) {
  size_t first_made = 0;
  for (size_t i = 0; i < changes.size(); ++i) {
    // What is moved into a directory that no power cut has to keep would go away with it.
    const bool made = i > 0 && changes[i - 1].kind == Kind::kMakeDirectory;
    const bool one_more = changes[i].kind == Kind::kMakeDirectory;
    if (one_more && !made) first_made = i;
    if (made && !one_more) SyncParents(changes.subspan(first_made, i - first_made));
    MakeOne(i, changes[i]);
  }
  SyncParents(changes);
}

void SaveJournal::MakeOne(size_t index, const Change& change) {
  switch (change.kind) {
    case Kind::kWrite:
      if (!Status(stage_.New(index))) break;
      Check(change.only_new ? syscalls::RenameToNew(stage_.New(index), change.path)
                            : syscalls::Rename(stage_.New(index), change.path),
            change.path);
      break;
    case Kind::kDelete:
    case Kind::kDeleteTree:
      if (Status(change.path) && !Status(stage_.Old(index))) {
        Check(syscalls::MoveAway(change.path, stage_.Old(index)), change.path);
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
  if (Status(stage_.Manifest())) {
    Check(syscalls::Rename(stage_.Manifest(), stage_.TakingBack()), stage_.Manifest());
  }
  // Once more where a try before this one got no further.
  if (Status(stage_.TakingBack())) Check(stage_.Sync(), root_);
  for (size_t i = changes.size(); i-- > 0;) TakeBackOne(i, changes[i]);
  SyncParents(changes);
  Discard();
}

void SaveJournal::TakeBackOne(size_t index, const Change& change) {
  switch (change.kind) {
    case Kind::kWrite:
      if (Status(stage_.New(index))) break;  // was not made
      if (!change.fresh) {
        if (Status(stage_.Old(index)))
          Check(syscalls::Rename(stage_.Old(index), change.path), change.path);
      } else if (Status(change.path)) {
        Check(syscalls::Unlink(change.path), change.path);
      }
      break;
    case Kind::kDelete:
    case Kind::kDeleteTree:
      if (Status(stage_.Old(index)))
        Check(syscalls::Rename(stage_.Old(index), change.path), change.path);
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

}  // namespace kladez
