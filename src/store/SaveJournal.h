// The staging directory of a SaveSet and the steps by which a set is staged, made final, carried
// out and taken back. Every step may be repeated after a crash without harm.
#pragma once

#include <QByteArray>
#include <span>
#include <vector>

#include "store/SaveSet.h"

namespace kladez {

class SaveJournal {
 public:
  explicit SaveJournal(const DataDir& data);

  // Writes new contents and keeps what they will replace. Throws; Discard then.
  void Stage(std::vector<SaveSet::Change>& changes);
  // From here on the set survives a crash.
  void MakeFinal(std::span<const SaveSet::Change> changes);
  // Makes the changes on the disk; throws at the first that fails. TakeBack then.
  void CarryOut(std::span<const SaveSet::Change> changes);
  void TakeBack(std::span<const SaveSet::Change> changes);
  // Removes the staging directory; what it still holds is no longer needed.
  void Discard();

  // A set of one file needs no manifest: one rename is all or nothing by itself.
  void CarryOutAlone(const SaveSet::Change& change);

  void Recover();

 private:
  QByteArray New(size_t index) const {
    return stage_ + "/new." + QByteArray::number(qulonglong(index));
  }
  QByteArray Old(size_t index) const {
    return stage_ + "/old." + QByteArray::number(qulonglong(index));
  }
  QByteArray Manifest() const { return stage_ + "/manifest"; }
  QByteArray TakingBack() const { return stage_ + "/taking-back"; }

  void StageOne(size_t index, SaveSet::Change& change);
  void MakeOne(size_t index, const SaveSet::Change& change);
  void TakeBackOne(size_t index, const SaveSet::Change& change);

  QByteArray root_;
  QByteArray stage_;
};

}  // namespace kladez
