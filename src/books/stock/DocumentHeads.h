// The heads of the documents of a directory, kept from one look to the next: a register that is
// shown in another order or through another filter asks for no file again that has not changed.
// What has changed meanwhile is known from the system; where that can't tell, all is read anew.
#pragma once

#include <QByteArray>
#include <QHash>
#include <filesystem>
#include <memory>
#include <vector>

#include "books/stock/DocumentScan.h"
#include "system/DirectoryWatch.h"

namespace kladez {

class DocumentHeads {
 public:
  using Visit = std::function<void(ScannedDocument&)>;

  // Of documents of a kind; nothing is read yet.
  explicit DocumentHeads(DocumentKind kind) : kind_(kind) {}

  // Visits the documents as ScanDocuments with Unreadable::kStop does, without their lines. What
  // it throws, and what `visit` throws, leaves nothing kept.
  void Scan(const DataDir& data, const QString& directory, const Visit& visit);
  // Whether the directory may hold other documents than at the last scan.
  bool MayHaveChanged(const DataDir& data, const QString& directory);

 private:
  struct Kept {
    QString file;
    size_t begin;  // of the head in bytes_
    qsizetype size;
  };

  void Keep(const ScannedDocument& document);
  void ReadAll(const DataDir& data, const QString& directory, const Visit& visit);
  void ReadChanged(const DataDir& data, const QString& directory,
                   const DirectoryWatch::Names& changed, const Visit& visit);
  void VisitKept(const Visit& visit) const;

  DocumentKind kind_;
  bool busy_ = false;
  std::unique_ptr<DirectoryWatch> watch_ = std::make_unique<DirectoryWatch>();
  std::filesystem::file_time_type time_;  // of the directory, at the last scan
  DirectoryWatch::Names changed_;         // told by the watch, and not read yet
  std::vector<Kept> kept_;                // in the order of names
  std::vector<char> bytes_;
};

}  // namespace kladez
