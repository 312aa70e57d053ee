// The one pass over documents that registers, reports, charts and the home screen stand on: the
// files of a directory in the order of their names, each taken apart in place. All texts are views
// of the file's bytes (Windows-1251), valid during the visit only; a field is named by its member
// of DocumentHead or DocumentLine:
//
//   ScanDocuments(data, DocumentKind::kShipment, u"0001\\Главный склад\\UHD"_s, Unreadable::kStop,
//                 [&](ScannedDocument& document) {
//                   total += NumberOr(document.Head(&DocumentHead::net_sum));
//                   while (document.NextLine()) Add(document.Line(&DocumentLine::name));
//                   return true;
//                 });
#pragma once

#include <QDate>
#include <array>
#include <functional>
#include <optional>

#include "books/store/DataDir.h"
#include "formats/DocumentFile.h"
#include "formats/TextLines.h"

namespace kladez {

class ScannedDocument {
 public:
  // `file` and what `bytes` views outlive it; `part` is how much of its directory is done, 0 to 1.
  ScannedDocument(const DocumentFormat& format, const QString& file, QByteArrayView bytes,
                  double part = 0);

  const QString& File() const { return file_; }  // "0012.uhd"
  double Part() const { return part_; }  // how much of its directory stands before it, 0 to 1

  // A line of the head; empty where the kind has no such field or the file ends before it.
  QByteArrayView Head(QString DocumentHead::*field) const;
  // Whether the file reaches that line of the head, all of them.
  bool Has(QString DocumentHead::*field) const;
  bool HasWholeHead() const { return head_lines_ == format_.head.size(); }
  // The lines of the head as they stand in the file, and nothing after them.
  QByteArrayView HeadBytes() const { return bytes_.first(bytes_.size() - after_head_); }
  // Nothing for a document without a valid date: no register and no report counts it.
  std::optional<QDate> Date() const;

  // Steps to the next goods line that is there whole, as many lines as its group has; false at the
  // end, and before a group that the end of the file cuts off.
  bool NextLine();
  QByteArrayView Line(QString DocumentLine::*field) const;
  // After NextLine said no: the file ends inside the head or inside a group.
  bool IsCut() const { return !HasWholeHead() || cut_; }

 private:
  static constexpr size_t kMostLines = 8;

  const DocumentFormat& format_;
  const QString& file_;
  double part_;
  QByteArrayView bytes_;
  LineReader rest_;
  qsizetype after_head_ = 0;
  std::array<QByteArrayView, kMostLines> head_;
  std::array<QByteArrayView, kMostLines> line_;
  size_t head_lines_ = 0;
  bool cut_ = false;
};

// What becomes of a file that can't be read: the scan ends with a filesystem_error that names it,
// or goes on with the next.
enum class Unreadable { kStop, kPassOver };

// Visits all documents of a kind in a directory (a path of the system); `visit` returns false to
// stop. Files that are not `wanted` by their names are passed over unread. Throws filesystem_error
// when the directory can't be listed.
void ScanDocuments(const DataDir& data, DocumentKind kind, const QString& directory,
                   Unreadable unreadable, const std::function<bool(ScannedDocument&)>& visit,
                   const DataDir::Wanted& wanted = {});

}  // namespace kladez
