// Whoever looks on as a data directory is changed (DataDir::SetWatch): copies are made before a
// change, and what a command has replaced is kept so that it can be undone.
#pragma once

namespace kladez {

class SaveSet;

class SaveWatch {
 public:
  virtual ~SaveWatch() = default;
  // Before the first byte is written. What it throws stops the command, nothing changed.
  virtual void BeforeSave(const SaveSet& save) = 0;
  // All is on the disk. It throws nothing.
  virtual void AfterSave(const SaveSet& save) = 0;
};

}  // namespace kladez
