#include "books/store/SaveStage.h"

#include <QRandomGenerator>
#include <algorithm>

#include "books/store/DataDir.h"
#include "system/OpenFile.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

constexpr char kFlatBegin[] = ".kladez-save.";

// What is staged in the root in either form, by name.
QByteArrayList StagedIn(const QByteArray& root) {
  QByteArrayList names;
  syscalls::OpenFile directory;
  if (directory.Open(root) != 0) return names;
  directory.ForEachEntry([&](const char* entry, FileStatus::Kind) {
    const QByteArray name(entry);
    if (name == kStagingName || name.startsWith(kFlatBegin)) names.append(name);
  });
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

SaveStage::SaveStage(const QByteArray& root, Form form)
    : form_(form),
      root_(root),
      directory_(form == Form::kFlat ? root : QByteArray(root + "/" + kStagingName)),
      base_(directory_ + '/' + (form == Form::kFlat ? kFlatBegin : "")) {}

QByteArray SaveStage::NewKey() {
  return QByteArray::number(QRandomGenerator::system()->generate64(), 36) + '.';
}

bool SaveStage::IsThere() const {
  FileStatus status;
  return syscalls::Look(directory_, &status) == 0 && status.IsDirectory();
}

int SaveStage::Sync() const { return syscalls::SyncDirectory(directory_); }

int SaveStage::Discard(const QByteArray& root, bool for_good) {
  for (const Form form : {Form::kDirectory, Form::kFlat}) {
    const SaveStage stage(root, form);
    if (!stage.IsThere()) continue;  // or a link, wherever it leads
    for (const QByteArray& mark : {stage.Manifest(), stage.TakingBack()}) {
      if (!syscalls::Exists(mark)) continue;
      if (const int error = syscalls::Unlink(mark)) return error;
      if (!for_good) continue;
      if (const int error = stage.Sync()) return error;
    }
  }
  for (const QByteArray& name : StagedIn(root)) {
    if (const int error = syscalls::RemoveTree(root + '/' + name)) return error;
  }
  return 0;
}

int SaveStage::PutAside(const QByteArray& aside) const {
  if (form_ == Form::kDirectory) return syscalls::RenameToNew(directory_, aside);
  if (const int error = syscalls::MakeDirectory(aside)) return error;
  QByteArrayList names = StagedIn(root_);
  const auto is_mark = [&](const QByteArray& name) {
    const QByteArray path = root_ + '/' + name;
    return path == Manifest() || path == TakingBack();
  };
  std::stable_partition(names.begin(), names.end(), [&](const auto& n) { return !is_mark(n); });
  for (const QByteArray& name : names) {
    if (!name.startsWith(kFlatBegin)) continue;
    const QByteArray plain = name.mid(static_cast<qsizetype>(sizeof kFlatBegin) - 1);
    if (const int error = syscalls::MoveAway(root_ + '/' + name, aside + '/' + plain)) return error;
  }
  return syscalls::SyncDirectory(aside);
}

}  // namespace kladez
