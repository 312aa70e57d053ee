// The steps by which a set is staged, made final, carried
// out and taken back. Every step may be repeated after a crash without harm. The data directory is
// locked for as long as the journal lives.
#pragma once

#include <QByteArray>
#include <filesystem>
#include <span>
#include <vector>

#include "books/store/DirectoryLock.h"
#include "books/store/SaveSet.h"
#include "books/store/SaveStage.h"

namespace kladez {

class SaveJournal {
 public:
  // Throws filesystem_error where another program holds the data directory for too long.
  explicit SaveJournal(const DataDir& data);

  // All changes or, when it throws, none. Where it first has to heal what a crash left it throws
  // too ("cancelled"): the caller may have read files that were changed in part only. Throws
  // StaleFile where a file is not as it is expected.
  void Commit(std::vector<SaveSet::Change>& changes,
              std::span<const SaveSet::Expectation> expected = {});
  void Recover();

 private:
  using Change = SaveSet::Change;

  // False where only leftovers without meaning lay there, or nothing.
  bool Heal();
  bool HealForm(SaveStage::Form form);
  std::vector<Change> Interrupted(const QByteArray& manifest);
  void RefuseForeign(size_t index, const Change& change);
  [[noreturn]] void PutAside(const std::filesystem::filesystem_error& error);
  bool IsDone(std::span<const Change> changes);
  bool IsMade(size_t index, const Change& change);
  // The list of changes reached the disk, and not all of their new contents did.
  bool NeverBegan(std::span<const Change> changes);
  // Tells which of both states holds.
  [[noreturn]] void Tell(const std::filesystem::filesystem_error& error);
  // Writes new contents and keeps what they will replace.
  void Stage(std::vector<Change>& changes);
  void StageOne(size_t index, Change& change);
  void StageWrite(size_t index, Change& change);
  // From here on the set survives a crash.
  void MakeFinal(std::vector<Change>& changes, std::span<const SaveSet::Expectation> expected);
  void CarryOut(std::span<const Change> changes);
  void MakeOne(size_t index, const Change& change);
  void TakeBack(std::span<const Change> changes);
  void TakeBackOne(size_t index, const Change& change);
  // Removes what is staged, which is no longer needed; 0 or an errno.
  int Discard(bool for_good = true) { return SaveStage::Discard(root_, for_good); }

  QByteArray root_;
  SaveStage stage_;
  DirectoryLock lock_;
};

}  // namespace kladez
