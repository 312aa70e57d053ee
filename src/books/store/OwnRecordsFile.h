// The working copy of a file of own records (formats/OwnRecords.h) of the open Database. A command
// that the records follow gathers them in its own SaveSet:
//
//   OwnRecordsFile terms(data, session.Path(files::kTerms));
//   terms.records.Follow(renamed);
//   terms.Gather(save);
//   save.Commit();
#pragma once

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "books/store/SaveSet.h"
#include "formats/OwnRecords.h"

namespace kladez {

class OwnRecordsFile {
 public:
  // Reads the file, with the path of the system ("0001\kladez\условия.usd"). One that is missing,
  // damaged or can't be read is empty; never throws.
  OwnRecordsFile(const DataDir& data, const QString& path);

  // Whether there is a file and it was not understood: the user is told so, and the next save
  // writes it anew.
  bool IsDamaged() const { return damaged_; }
  bool IsChanged() const { return records != read_; }

  // Adds the file to the set where the records are not those that were read; the folder is made
  // with it. This object must live until the commit, which throws StaleFile where somebody else
  // has written the file meanwhile.
  void Gather(SaveSet& save);

  OwnRecords records;

 private:
  const QString path_;
  OwnRecords read_;
  FileState state_;
  bool damaged_ = false;
};

}  // namespace kladez
