#include "books/copies/CopyCompare.h"

#include <algorithm>
#include <map>
#include <optional>

#include "books/copies/Archive.h"
#include "books/stock/DocumentBook.h"
#include "books/store/FileState.h"
#include "formats/DatabaseFiles.h"
#include "formats/GoodsFile.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "system/PathNames.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

enum class Sort { kDocument, kGoods, kLedger, kOther };

// What is kept of a file: of a document no more than its head.
struct Kept {
  quint64 fingerprint = 0;
  QByteArray bytes;
};
using Contents = std::map<QByteArray, Kept>;

constexpr qsizetype kLongestHead = 1000;

std::optional<DocumentKind> KindOf(const QByteArray& name) {
  const QString folded = FoldCase(DecodePath(name));
  for (const DocumentKind kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    if (folded.endsWith(FoldCase(FormatOf(kind).extension))) return kind;
  }
  return std::nullopt;
}

Sort SortOf(const QByteArray& name) {
  if (KindOf(name)) return Sort::kDocument;
  const QString folded = FoldCase(DecodePath(name).section(u'/', 1).replace(u'/', u'\\'));
  if (folded == FoldCase(files::kGoods.toString())) return Sort::kGoods;
  const bool ledger = folded.endsWith(FoldCase(QString(u'\\' + files::kLedger.toString())));
  return ledger ? Sort::kLedger : Sort::kOther;
}

Contents ContentsOf(const StoredCopy& copy, const Progress& progress) {
  Contents contents;
  const auto all = static_cast<double>(std::max<qint64>(copy.note.files, 1));
  ReadArchive(ArchiveBytes(copy.file), copy.file, [&](const ArchivedFile& file) {
    progress.Tell(static_cast<double>(contents.size()) / all);
    const Sort sort = SortOf(file.name);
    if (file.is_directory || sort == Sort::kOther) return true;
    const auto most =
        sort == Sort::kDocument ? std::min(kLongestHead, file.bytes.size()) : file.bytes.size();
    contents[file.name] = {Fingerprint(file.bytes), file.bytes.first(most).toByteArray()};
    return true;
  });
  return contents;
}

// A name and what is told of it.
using Values = std::map<QString, QString>;

class Comparison {
 public:
  void Compare(const QByteArray& name, const QByteArray& was, const QByteArray& now) {
    const QString path = DecodePath(name);
    const QString warehouse = path.section(u'/', 1, 1);
    switch (SortOf(name)) {
      case Sort::kDocument:
        AddDocument(*KindOf(name), warehouse, path.section(u'/', -1), was, now);
        break;
      case Sort::kGoods:
        Add(goods_, u"Товар «%1»"_s, PricesOf(was), PricesOf(now));
        break;
      case Sort::kLedger:
        Add(stock_, u"Остаток «%1», "_s + QString(warehouse).replace(u'%', u" "_s),
            QuantitiesOf(was), QuantitiesOf(now));
        break;
      case Sort::kOther:
        break;
    }
  }

  std::vector<CopyChange> Take() {
    std::vector<CopyChange> all = std::move(documents_);
    for (auto* part : {&goods_, &stock_}) {
      all.insert(all.end(), std::make_move_iterator(part->begin()),
                 std::make_move_iterator(part->end()));
    }
    if (all.size() > kMostCopyChanges) all.resize(kMostCopyChanges);
    return all;
  }

 private:
  static QString SumOf(DocumentKind kind, const QByteArray& bytes) {
    if (bytes.isEmpty()) return {};
    const DocumentHead head = ReadDocumentHead(kind, bytes);
    const QString closed = !BookOf(kind).has_flag ? QString()
                           : head.IsClosed()      ? u", закрыт"_s
                                                  : u", открыт"_s;
    return head.*BookOf(kind).total + closed;
  }

  void AddDocument(DocumentKind kind, const QString& warehouse, const QString& file,
                   const QByteArray& was, const QByteArray& now) {
    if (documents_.size() >= kMostCopyChanges) return;
    const DocumentHead head = ReadDocumentHead(kind, now.isEmpty() ? was : now);
    QString what = BookOf(kind).name + u' ' + head.number + u" от "_s + head.date;
    if (BookOf(kind).in_warehouse) what += u", "_s + warehouse;
    documents_.push_back({what + u" (" + file + u')', SumOf(kind, was), SumOf(kind, now)});
  }

  static Values PricesOf(const QByteArray& bytes) {
    Values prices;
    ForEachGoods(bytes, [&](const RawGoods& row) {
      if (!row.IsGroup()) prices.insert({DecodeText(row.name), DecodeText(row.price)});
    });
    return prices;
  }

  static Values QuantitiesOf(const QByteArray& bytes) {
    std::map<QString, double> sums;
    ForEachLedgerRecord(bytes, [&](auto name, auto quantity, auto) {
      sums[DecodeText(name)] += NumberOr(quantity);
    });
    Values quantities;
    for (const auto& [name, sum] : sums) quantities[name] = GeneralText(sum);
    return quantities;
  }

  static void Add(std::vector<CopyChange>& changes, const QString& what, const Values& was,
                  const Values& now) {
    const auto add = [&](const QString& name, const QString& old, const QString& fresh) {
      if (changes.size() < kMostCopyChanges) changes.push_back({what.arg(name), old, fresh});
    };
    for (const auto& [name, value] : was) {
      const auto other = now.find(name);
      if (other == now.end()) {
        add(name, value, {});
      } else if (other->second != value) {
        add(name, value, other->second);
      }
    }
    for (const auto& [name, value] : now) {
      if (!was.contains(name)) add(name, {}, value);
    }
  }

  std::vector<CopyChange> documents_, goods_, stock_;
};

}  // namespace

std::vector<CopyChange> CompareCopies(const StoredCopy& before, const StoredCopy& after,
                                      const Progress& progress) {
  Contents was = ContentsOf(before, progress.Piece(0, 0.5));
  const Contents now = ContentsOf(after, progress.Piece(0.5, 1));
  Comparison comparison;
  for (const auto& [name, file] : now) {
    const auto old = was.find(name);
    if (old == was.end()) {
      comparison.Compare(name, {}, file.bytes);
      continue;
    }
    if (old->second.fingerprint != file.fingerprint) {
      comparison.Compare(name, old->second.bytes, file.bytes);
    }
    was.erase(old);
  }
  for (const auto& [name, file] : was) comparison.Compare(name, file.bytes, {});
  return comparison.Take();
}

}  // namespace kladez
