// A copy unpacked beside the books for as long as somebody looks into it: a data directory of its
// own with one Database, which all that reads books can read.
#pragma once

#include <vector>

#include "books/copies/CopyFolder.h"
#include "books/store/Catalogue.h"
#include "books/store/Session.h"
#include "formats/DocumentFile.h"
#include "formats/Progress.h"

namespace kladez {

class UnpackedCopy {
 public:
  // Throws filesystem_error where the copy can't be read, is not what was once written or does not
  // fit on the disk, and WorkCancelled. Nothing stays then.
  explicit UnpackedCopy(const StoredCopy& copy, const Progress& progress = {});
  ~UnpackedCopy();  // removes it again
  UnpackedCopy(const UnpackedCopy&) = delete;
  UnpackedCopy& operator=(const UnpackedCopy&) = delete;

  // What the copy tells of itself; the data directory with its one Database.
  const CopyNote& Note() const { return note_; }
  const DataDir& Data() const { return *data_; }
  // The Database as it was, opened.
  const Session& Opened() const { return session_; }
  // Its row of the catalogue.
  const CatalogueEntry& Entry() const { return entry_; }

 private:
  void Unpack(const StoredCopy& copy, const Progress& progress);

  const CopyNote note_;
  const QByteArray place_;
  std::optional<DataDir> data_;
  Session session_;
  CatalogueEntry entry_;
};

struct CopiedDocument {
  DocumentKind kind;
  QString warehouse;  // empty for a transfer
  QString file;       // "0012.prh"
  DocumentHead head;
};

// All documents, warehouse by warehouse. Throws filesystem_error and WorkCancelled.
std::vector<CopiedDocument> DocumentsOf(const UnpackedCopy& copy, const Progress& progress = {});

// One file that is brought back by itself: a directory, a ledger, a price list.
struct CopiedList {
  QString title;  // "Товары", "Остатки склада «Лавка»"
  QString path;   // inside the Database
};
// The lists of the copy that are there, in the order in which they are shown.
std::vector<CopiedList> ListsOf(const UnpackedCopy& copy);

// The three ways back. Each is one save after a copy of what is there now; none touches stock on
// hand but a list of it. They throw filesystem_error, nothing changed then; the first also
// WorkCancelled.
//
// As a new Database under the next free number, with " (копия)" after its name.
void BringBackWhole(const DataDir& data, const UnpackedCopy& copy, const Progress& progress = {});
// Into the Database of the same number, over what stands there in the document's or list's place.
void BringBackDocument(const DataDir& data, const UnpackedCopy& copy,
                       const CopiedDocument& document);
void BringBackList(const DataDir& data, const UnpackedCopy& copy, const CopiedList& list);

// The name of the Database into which these two go; empty where it is gone.
QString NameOfTarget(const DataDir& data, const UnpackedCopy& copy);

}  // namespace kladez
