#include "books/copies/UndoLog.h"

#include <QDirIterator>
#include <algorithm>
#include <cerrno>
#include <set>

#include "books/store/Errors.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using Kind = SaveSet::Kind;

[[noreturn]] void RefuseUndo(const QString& why, const QString& path, int error) {
  ThrowFileError(u"Отменить нельзя: "_s + why, path, error);
}

bool Lies(const QString& path, const QString& directory) {
  return path.startsWith(directory + u'\\');
}

}  // namespace

QString UndoLog::SystemPath(const QByteArray& path) const {
  return DecodePath(path).mid(data_.Root().size() + 1).replace(u'/', u'\\');
}

void UndoLog::BeforeSave(const SaveSet& save) {
  pending_ = {.what = save.What(), .states = {}};
  if (pending_.what.isEmpty()) return;
  for (const SaveSet::Change& change : save.Changes()) {
    pending_.states.push_back(StateBefore(change, pending_));
    if (pending_.too_much) break;
  }
}

UndoLog::OldState UndoLog::StateBefore(const SaveSet::Change& change, Step& step) const {
  OldState state{.kind = change.kind,
                 .path = SystemPath(change.path),
                 .to = change.to.isEmpty() ? QString() : SystemPath(change.to),
                 .bytes = {},
                 .made = {},
                 .directories = {},
                 .files = {}};
  FileStatus status;
  state.existed = syscalls::Look(change.path, &status) == 0;
  // The outside has its say later, when the command itself meets it.
  if (change.contents) step.too_much = true;
  if (!state.existed) return state;
  if (status.IsFile() && (change.kind == Kind::kWrite || change.kind == Kind::kDelete)) {
    if (syscalls::ReadPlainFile(change.path, kMostBytes - step.bytes, &state.bytes) != 0) {
      step.too_much = true;
    }
    step.bytes += state.bytes.size();
  }
  if (change.kind == Kind::kDeleteTree) KeepTree(change.path, state, step);
  return state;
}

void UndoLog::KeepTree(const QByteArray& directory, OldState& state, Step& step) const {
  constexpr qsizetype kPerFile = 256;  // a tree of empty files takes its room, too
  state.directories.append(state.path);
  QDirIterator walk(DecodePath(directory),
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext() && !step.too_much) {
    const QByteArray path = EncodePath(walk.next());
    const QFileInfo info = walk.fileInfo();
    step.bytes += kPerFile;
    if (info.isDir() && !info.isSymLink()) {
      state.directories.append(SystemPath(path));
      continue;
    }
    OldFile file{SystemPath(path), {}};
    if (syscalls::ReadPlainFile(path, kMostBytes - step.bytes, &file.bytes) != 0) {
      step.too_much = true;
    }
    step.bytes += file.bytes.size();
    state.files.push_back(std::move(file));
  }
  std::sort(state.directories.begin(), state.directories.end());
}

void UndoLog::AfterSave(const SaveSet& save) {
  if (pending_.what.isEmpty()) return;
  Step step = std::exchange(pending_, {});
  if (step.too_much) {
    step.states.clear();
    step.bytes = 0;
  }
  for (size_t i = 0; i < step.states.size(); ++i) {
    const SaveSet::Change& change = save.Changes()[i];
    if (change.kind != Kind::kWrite) continue;
    step.states[i].made = {.known = true,
                           .exists = true,
                           .size = change.bytes.size(),
                           .fingerprint = Fingerprint(change.bytes)};
  }
  steps_.push_back(std::move(step));
  qsizetype bytes = 0;
  for (const Step& kept : steps_) bytes += kept.bytes;
  while (steps_.size() > kMostSteps || bytes > kMostBytes) {
    bytes -= steps_.front().bytes;
    steps_.pop_front();
  }
}

void UndoLog::UndoLast(const Session& session) {
  if (steps_.empty()) return;
  const Step& step = steps_.back();
  if (step.too_much) {
    RefuseUndo(
        u"команда заменила слишком много, чтобы держать это в памяти. Прежнее лежит в "
        u"копии, её открывает команда «Файл → Машина времени…»"_s,
        step.what, EFBIG);
  }
  SaveSet save(data_);
  for (size_t i = step.states.size(); i-- > 0;) {
    const OldState& state = step.states[i];
    if (state.kind == Kind::kMakeDirectory && state.path + u'\\' == session.base_path) {
      RefuseUndo(u"эта база сейчас открыта"_s, state.path, EBUSY);
    }
    AddReversal(save, step, state);
  }
  save.Commit();
  steps_.pop_back();
}

void UndoLog::OpenedBy(bool seller) {
  if (seller && !seller_) steps_.clear();
  seller_ = seller;
}

void UndoLog::AddReversal(SaveSet& save, const Step& step, const OldState& state) const {
  const bool goes_with_directory =
      std::any_of(step.states.begin(), step.states.end(), [&](const OldState& other) {
        return other.kind == Kind::kMakeDirectory && !other.existed && Lies(state.path, other.path);
      });
  if (goes_with_directory) return;
  switch (state.kind) {
    case Kind::kWrite: {
      save.Expect(state.path, state.made);
      if (state.existed) {
        save.Write(state.path, state.bytes);
      } else {
        save.Delete(state.path);
      }
      break;
    }
    case Kind::kDelete:
      if (state.existed) save.WriteNew(state.path, state.bytes);
      break;
    case Kind::kMakeDirectory:
      if (state.existed) break;
      RequireOnlyItsOwn(step, state.path);
      save.DeleteTree(state.path);
      break;
    case Kind::kRename:
      save.RenameDirectory(state.to, state.path);
      break;
    case Kind::kDeleteTree:
      for (const QString& directory : state.directories) save.MakeNewDirectory(directory);
      for (const OldFile& file : state.files) save.WriteNew(file.path, file.bytes);
      break;
  }
}

// A directory that the command made goes again only with what the command put there.
void UndoLog::RequireOnlyItsOwn(const Step& step, const QString& directory) const {
  QDirIterator walk(data_.Resolve(directory),
                    QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString path = SystemPath(EncodePath(walk.next()));
    const auto own = std::find_if(step.states.begin(), step.states.end(),
                                  [&](const OldState& state) { return state.path == path; });
    if (own == step.states.end() || !IsStill(own->made, data_, path)) {
      RefuseUndo(u"после этой команды здесь появилось новое"_s, path, ENOTEMPTY);
    }
  }
}

}  // namespace kladez
