// Reads the documents of one directory strictly: heads and lines that the format wants, numbers and
// dates that can be read, names that stand in their directories, sums that are those of the lines,
// numbers that stand once.
#pragma once

#include <map>

#include "books/check/NameCheck.h"
#include "books/check/StockCheck.h"
#include "books/check/StrictLines.h"
#include "formats/DocumentFile.h"

namespace kladez {

// The names that documents refer to. All outlive the check.
struct DirectoryNames {
  KnownNames goods;
  KnownNames clients;
  KnownNames suppliers;
  QStringList warehouses;
};

class DocumentCheck {
 public:
  // `directory` is where the documents lie, `warehouse` the place of its warehouse in the list, -1
  // for transfers.
  DocumentCheck(DocumentKind kind, const QString& directory, int warehouse, DirectoryNames& names,
                StockCheck& stock, FindingList& findings);

  // The files in the order of the listing.
  void Add(const QString& file, QByteArrayView bytes);
  // After the last file: numbers that are missing among them.
  void Finish();

 private:
  // A field of the head or of the goods line that begins at `first`, and the number of its line.
  QByteArrayView Head(QString DocumentHead::*field) const;
  int HeadLine(QString DocumentHead::*field) const;
  void CheckFileName(const QString& file);
  void CheckHead();
  void CheckNumberStandsOnce(int year);
  void CheckParty(QString DocumentHead::*field);
  void CheckLines();
  void CheckSums(double sum_of_lines);
  void Tell(int line, const QString& text) { findings_.Add({path_, line, text}); }

  const DocumentKind kind_;
  const DocumentFormat& format_;
  const QString directory_;
  const int warehouse_;
  DirectoryNames& names_;
  StockCheck& stock_;
  FindingList& findings_;

  QString path_;  // of the document at hand
  StrictLines text_;
  size_t head_lines_ = 0;                                  // that the file has
  std::map<std::pair<int, QByteArray>, QString> numbers_;  // year and number to the first file
  std::vector<qint64> file_numbers_;
};

}  // namespace kladez
