// A document while it is being written: the working copy behind the three editors. It keeps the sum
// by adding and subtracting the rounded amounts of its lines, as they come and go, and never sums
// them anew; saving writes the document and, where it is due, posts it to the ledgers, in one save.
#pragma once

#include <QDate>
#include <vector>

#include "books/directories/GoodsPick.h"
#include "books/stock/DocumentRegister.h"
#include "books/stock/DraftParts.h"
#include "books/stock/PrintSource.h"

namespace kladez {

class DocumentDraft {
 public:
  using Place = DraftPlace;
  using Outcome = DraftOutcome;

  // A new document, with its file name and a proposed number, and a copy of the ledgers that it
  // would post to. Throws filesystem_error.
  static DocumentDraft New(const Place& place, QDate today);
  // A document of the register: its head is that of the row, its lines come from the file.
  static DocumentDraft Open(const Place& place, const RegisterRow& row);

  // Head and file ("0012.prh") as they would be saved, and the kind of document.
  const DocumentHead& Head() const { return head_; }
  const QString& File() const { return file_; }
  DocumentKind Kind() const { return place_.kind; }
  // The warehouse that goods are picked in: where the document lies, or a transfer's source.
  const QString& Warehouse() const { return book_.in_warehouse ? place_.warehouse : head_.party; }
  const std::vector<DraftLine>& Lines() const { return lines_; }
  // Saved closed before: the flag stays, and no save posts again.
  bool WasClosed() const { return was_closed_; }
  bool IsNew() const { return is_new_; }
  // Whether the ledgers have the lines, as they were when it was saved last: no save changes that.
  bool HasPosted() const { return book_.has_flag ? was_closed_ : !is_new_; }
  const Place& Where() const { return place_; }

  // The fields of the head, each as the editor shows it; a closed document posts when it is saved.
  void SetNumber(const QString& number) { head_.number = number; }
  void SetDate(QDate date);
  void SetParty(const QString& party) { head_.party = party; }
  void SetClosed(bool closed);
  // Number texts; the sum after the discount follows.
  void SetSum(const QString& sum);
  void SetDiscount(const QString& percent);
  // Transfers: chooses the warehouse of one side and takes a copy of its ledger. Throws
  // filesystem_error, the choice as before then.
  void ChooseWarehouse(QString DocumentHead::*side, const QString& warehouse);

  // Adds a picked line at the end; the same goods twice are two lines. A pick without a name,
  // quantity or price, as that of a group, adds nothing: false.
  bool AddLine(const GoodsPick& pick);
  // `amount` is what the line comes to, as the dialog shows it.
  void ChangeLine(size_t row, const QString& quantity, const QString& price, const QString& amount);
  void RemoveLine(size_t row);

  // Throws filesystem_error, nothing written then; the draft may be saved again. StaleFile: the
  // ledgers or the document are no longer as they were taken; EEXIST for a new document whose file
  // is there by now.
  Outcome Save();
  // Takes the ledgers anew, and a changed document's file as it is now, so that Save writes over
  // it. Throws filesystem_error.
  void TakeFilesAnew();
  // What a new document whose file exists may do: take the next free name, or write over the other
  // one. Both ways throw filesystem_error.
  QString FreeFile() const;
  void SaveAs(const QString& file) { file_ = file; }
  void SaveOverExisting();

  // The told way to have stock follow a change of a document that has posted, in one save: deletes
  // it with reversal and enters its fields and lines as they are now under the next name, where
  // they post. Throws filesystem_error, nothing written then.
  Outcome EnterAnew();

  // Whether fields and lines differ from those it was opened with, or from those of MarkUnchanged.
  bool IsChanged() const { return Shown() != unchanged_; }
  bool LinesAreChanged() const { return Shown().lines != unchanged_.lines; }
  void MarkUnchanged() { unchanged_ = Shown(); }

  // What a print screen is handed.
  PrintSource ToPrint() const;

 private:
  explicit DocumentDraft(const Place& place) : place_(place), book_(BookOf(place.kind)) {}

  QString DocumentFile() const;
  void TakeLedgers();
  bool Posts() const;
  void Recompute();
  Document ToDocument() const;
  Document Shown() const;
  std::vector<LedgerRecord> Records() const;

  Place place_;
  const DocumentBook& book_;
  QString file_;
  DocumentHead head_;
  std::vector<DraftLine> lines_;
  // The ledgers as they were when the draft was opened, one for each effect: postings go on these.
  std::vector<QByteArray> ledgers_;
  std::vector<FileState> ledger_files_;
  FileState document_file_ = FileState::Missing();
  Document unchanged_;  // fields and lines as they were first
  bool is_new_ = false;
  bool was_closed_ = false;
};

}  // namespace kladez
