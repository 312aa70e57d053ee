#include "books/stock/DocumentDraft.h"

#include <map>
#include <utility>

#include "books/stock/DocumentNumbers.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

DocumentDraft DocumentDraft::New(const Place& place, QDate today) {
  DocumentDraft draft(place);
  const QString directory = DocumentDirectory(place.session, place.kind, place.warehouse);
  const NewDocumentNumbers numbers = NumbersForNew(place.data, place.kind, directory);
  draft.file_ = numbers.file;
  draft.is_new_ = true;
  draft.head_.number = numbers.number;
  draft.head_.sum = u"0.00"_s;
  draft.SetDate(today);
  if (draft.book_.has_flag) {
    draft.head_.party = u"-"_s;
    draft.SetClosed(false);
  } else {
    const QStringList& warehouses = place.session.warehouses;
    draft.head_.party = warehouses.value(0);
    draft.head_.destination = warehouses.value(warehouses.size() > 1 ? 1 : 0);
  }
  draft.SetDiscount(u"0"_s);
  draft.TakeLedgers();
  draft.MarkUnchanged();
  return draft;
}

DocumentDraft DocumentDraft::Open(const Place& place, const RegisterRow& row) {
  DocumentDraft draft(place);
  draft.file_ = row.file;
  draft.head_ = row.head;
  if (const auto date = ParseDate(row.head.date)) draft.SetDate(*date);
  if (draft.book_.has_flag) {
    draft.was_closed_ = row.head.IsClosed();
    draft.SetClosed(draft.was_closed_);
  }
  Document document = ReadDocument(
      place.kind,
      ReadWithState(place.data, DocumentPath(place.session, place.kind, place.warehouse, row.file),
                    draft.document_file_));
  draft.lines_.reserve(document.lines.size());
  for (DocumentLine& line : document.lines) draft.lines_.push_back(WithAmount(std::move(line)));
  draft.Recompute();
  draft.TakeLedgers();
  draft.MarkUnchanged();
  return draft;
}

void DocumentDraft::TakeLedgers() {
  if (HasPosted()) return;  // no save of it will post
  std::vector<QByteArray> ledgers;
  std::vector<FileState> files;
  for (const LedgerEffect& effect : book_.effects) {
    const QString warehouse = WarehouseOf(effect, head_, place_.warehouse);
    ledgers.push_back(
        ReadWithState(place_.data, LedgerPath(place_.session, warehouse), files.emplace_back()));
  }
  ledgers_ = std::move(ledgers);
  ledger_files_ = std::move(files);
}

void DocumentDraft::TakeFilesAnew() {
  TakeLedgers();
  if (document_file_.exists) ReadWithState(place_.data, DocumentFile(), document_file_);
}

QString DocumentDraft::DocumentFile() const {
  return DocumentPath(place_.session, place_.kind, place_.warehouse, file_);
}

void DocumentDraft::SetDate(QDate date) { head_.date = DateText(date); }

void DocumentDraft::SetClosed(bool closed) { head_.closed = closed ? u"да"_s : u"нет"_s; }

void DocumentDraft::SetSum(const QString& sum) {
  head_.sum = sum;
  Recompute();
}

void DocumentDraft::SetDiscount(const QString& percent) {
  head_.discount = percent;
  Recompute();
}

void DocumentDraft::Recompute() { head_.net_sum = AfterDiscount(head_.sum, head_.discount); }

void DocumentDraft::ChooseWarehouse(QString DocumentHead::*side, const QString& warehouse) {
  const QString before = std::exchange(head_.*side, warehouse);
  try {
    TakeLedgers();
  } catch (...) {
    head_.*side = before;
    throw;
  }
}

bool DocumentDraft::AddLine(const GoodsPick& pick) {
  if (pick.is_group || pick.name.isEmpty() || pick.quantity.isEmpty() || pick.price.isEmpty()) {
    return false;
  }
  const DraftLine& added = lines_.emplace_back(WithAmount(
      {pick.name, pick.quantity, pick.unit, pick.cost, FormatMoney(NumberOr(pick.price)), {}}));
  SetSum(FormatMoney(NumberOr(head_.sum) + NumberOr(added.amount)));
  return true;
}

void DocumentDraft::ChangeLine(size_t row, const QString& quantity, const QString& price,
                               const QString& amount) {
  DraftLine& changed = lines_[row];
  const double without = NumberOr(head_.sum) - NumberOr(changed.amount);
  changed.line.quantity = quantity;
  changed.line.price = FormatMoney(NumberOr(price));
  changed.amount = amount;
  SetSum(FormatMoney(without + NumberOr(changed.amount)));
}

void DocumentDraft::RemoveLine(size_t row) {
  SetSum(FormatMoney(NumberOr(head_.sum) - NumberOr(lines_[row].amount)));
  lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(row));
}

bool DocumentDraft::Posts() const {
  return book_.has_flag ? head_.IsClosed() && !was_closed_ : is_new_;
}

Document DocumentDraft::ToDocument() const {
  Document document{head_, {}};
  document.head.sum = FormatMoney(NumberOr(head_.sum));
  document.lines.reserve(lines_.size());
  for (const DraftLine& draft : lines_) {
    DocumentLine& line = document.lines.emplace_back(draft.line);
    line.net_price = AfterDiscount(line.price, head_.discount);
  }
  return document;
}

std::vector<LedgerRecord> DocumentDraft::Records() const {
  std::vector<LedgerRecord> records;
  for (const DraftLine& draft : lines_) {
    records.push_back({draft.line.name, draft.line.quantity, draft.line.unit});
  }
  return records;
}

DocumentDraft::Outcome DocumentDraft::EnterAnew() {
  if (book_.has_flag && lines_.empty()) return Outcome::kNoLines;
  if (!book_.has_flag && head_.party == head_.destination) return Outcome::kSameWarehouse;
  const QString directory = DocumentDirectory(place_.session, place_.kind, place_.warehouse);
  const QString old_path = directory + u'\\' + file_;
  const QString new_file = FreeDocumentFile(place_.data, place_.kind, directory);
  const Document old = ReadDocument(place_.kind, place_.data.Read(old_path));
  SaveSet save(place_.data, u"накладная %1 записана"_s.arg(head_.number));
  save.Delete(old_path);
  save.WriteNew(directory + u'\\' + new_file, WriteDocument(place_.kind, ToDocument()));
  std::map<QString, QByteArray> ledgers;
  const auto ledger_of = [&](const LedgerEffect& effect, const DocumentHead& head) -> QByteArray& {
    const QString path = LedgerPath(place_.session, WarehouseOf(effect, head, place_.warehouse));
    if (!ledgers.contains(path)) ledgers[path] = place_.data.Read(path);
    return ledgers[path];
  };
  for (const LedgerEffect& effect : book_.effects) {
    ledger_of(effect, old.head) += WriteLedger(ReversalOf(effect, old));
  }
  for (const LedgerEffect& effect : book_.effects) {
    QByteArray& bytes = ledger_of(effect, head_);
    StockLedger ledger(bytes);
    ledger.Post(effect.posting, Records());
    bytes = ledger.Bytes();
  }
  for (const auto& [path, bytes] : ledgers) save.Write(path, bytes);
  save.Commit();
  file_ = new_file;
  return Outcome::kSaved;
}

DocumentDraft::Outcome DocumentDraft::Save() {
  if (book_.has_flag && lines_.empty()) return Outcome::kNoLines;
  if (!book_.has_flag && head_.party == head_.destination) return Outcome::kSameWarehouse;
  if (is_new_ && !document_file_.exists && place_.data.FileExists(DocumentFile())) {
    return Outcome::kFileExists;
  }
  SaveSet save(place_.data, u"накладная %1 записана"_s.arg(head_.number));
  save.Write(DocumentFile(), WriteDocument(place_.kind, ToDocument()), document_file_);
  if (Posts()) {
    const std::vector<LedgerRecord> records = Records();
    for (size_t i = 0; i < book_.effects.size(); ++i) {
      StockLedger ledger(ledgers_[i]);
      ledger.Post(book_.effects[i].posting, records);
      const QString warehouse = WarehouseOf(book_.effects[i], head_, place_.warehouse);
      save.Write(LedgerPath(place_.session, warehouse), ledger.Bytes(), ledger_files_[i]);
    }
  }
  save.Commit();
  return Outcome::kSaved;
}

void DocumentDraft::SaveOverExisting() {
  ReadWithState(place_.data, DocumentFile(), document_file_);
}

QString DocumentDraft::FreeFile() const {
  return FreeDocumentFile(place_.data, place_.kind,
                          DocumentDirectory(place_.session, place_.kind, place_.warehouse));
}

Document DocumentDraft::Shown() const {
  Document shown{head_, {}};
  for (const DraftLine& draft : lines_) shown.lines.push_back(draft.line);
  return shown;
}

PrintSource DocumentDraft::ToPrint() const {
  return PrintSourceOf(place_.kind, place_.warehouse, Shown());
}

}  // namespace kladez
