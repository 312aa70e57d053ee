#include "books/stock/StockLedger.h"

#include <bitset>
#include <functional>
#include <queue>
#include <unordered_map>

#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {

// Where each name of a posting stands in the ledger, kept true while the posting changes lines.
class NameIndex {
 public:
  NameIndex(std::span<const QByteArray> names, const StockLedger& ledger) : ledger_(ledger) {
    for (const QByteArray& name : names) {
      places_.try_emplace(QByteArrayView(name));
      marks_.set(Mark(name));
    }
    for (LineReader reader(ledger.bytes_); !reader.AtEnd();) {
      const size_t place = ledger.End() - static_cast<size_t>(reader.Left());
      Look(reader.NextRaw(), place);
    }
    for (const auto& [line, text] : ledger.changed_) Look(text, line);
    for (size_t i = 0; i < ledger.added_.size(); ++i) Look(ledger.added_[i], ledger.End() + i);
  }

  // Tells that a line has a new text.
  void LineChanged(size_t line) { Look(ledger_.At(line), line); }

  // The first line that holds the name and has a line after it to change.
  bool Find(QByteArrayView name, size_t* line) {
    Places& places = places_.find(name)->second;
    // Lines change while a posting goes on: one that no longer holds the name is passed over.
    while (!places.empty() && ledger_.At(places.top()) != name) places.pop();
    if (places.empty()) return false;
    *line = places.top();
    return ledger_.Exists(ledger_.After(*line));
  }

 private:
  // First line first.
  using Places = std::priority_queue<size_t, std::vector<size_t>, std::greater<>>;

  void Look(QByteArrayView text, size_t line) {
    // Nearly every line is none of the names: one bit tells, without a hash.
    if (!marks_.test(Mark(text))) return;
    const auto found = places_.find(text);
    if (found != places_.end()) found->second.push(line);
  }
  static size_t Mark(QByteArrayView line) {
    if (line.isEmpty()) return 0;
    const auto byte = [&](qsizetype at) { return static_cast<unsigned char>(line[at]); };
    return (static_cast<size_t>(line.size()) * 31 + byte(0) * 7 + byte(line.size() / 2) * 131 +
            byte(line.size() - 1) * 17) %
           kMarks;
  }
  struct Hash {
    size_t operator()(QByteArrayView line) const { return qHash(line); }
  };

  static constexpr size_t kMarks = 4096;
  const StockLedger& ledger_;
  std::unordered_map<QByteArrayView, Places, Hash> places_;
  std::bitset<kMarks> marks_;
};

namespace {

QString Changed(Posting posting, QByteArrayView old, double quantity) {
  return posting == Posting::kIssue ? FormatLedger(NumberOr(old) - quantity)
                                    : GeneralText(NumberOr(old) + quantity);
}

QString Entered(Posting posting, const QString& quantity) {
  switch (posting) {
    case Posting::kReceive:
      return quantity;
    case Posting::kReceiveAsNumber:
      return GeneralText(NumberOr(quantity));
    case Posting::kIssue:
      return FormatLedger(0 - NumberOr(quantity));
  }
  Q_UNREACHABLE();
}

}  // namespace

StockLedger::StockLedger(QByteArray bytes) : bytes_(std::move(bytes)) {}

QByteArrayView StockLedger::Original(Place line) const {
  return LineReader(QByteArrayView(bytes_).sliced(static_cast<qsizetype>(line))).NextRaw();
}

QByteArrayView StockLedger::At(Place line) const {
  if (line >= End()) return added_[line - End()];
  const auto changed = changed_.find(line);
  return changed == changed_.end() ? Original(line) : QByteArrayView(changed->second);
}

StockLedger::Place StockLedger::After(Place line) const {
  if (line >= End()) return line + 1;
  LineReader reader(QByteArrayView(bytes_).sliced(static_cast<qsizetype>(line)));
  reader.NextRaw();
  return End() - static_cast<Place>(reader.Left());
}

void StockLedger::Post(Posting posting, std::span<const LedgerRecord> records) {
  std::vector<QByteArray> names;
  std::vector<QByteArray> units;
  std::vector<QByteArray> quantities;  // what a name that is not found is entered with
  for (const LedgerRecord& record : records) {
    names.push_back(EncodeText(record.name));
    quantities.push_back(EncodeText(Entered(posting, record.quantity)));
    units.push_back(EncodeText(record.unit));
  }
  NameIndex index(names, *this);
  for (size_t i = 0; i < records.size(); ++i) {
    Place line = 0;
    if (index.Find(names[i], &line)) {
      const Place quantity = After(line);
      const QString text = Changed(posting, At(quantity), NumberOr(records[i].quantity));
      (quantity < End() ? changed_[quantity] : added_[quantity - End()]) = EncodeText(text);
      index.LineChanged(quantity);
      continue;
    }
    for (const QByteArray* part : {&names[i], &quantities[i], &units[i]}) {
      added_.push_back(*part);
      index.LineChanged(End() + added_.size() - 1);
    }
  }
}

QByteArray StockLedger::Bytes() const {
  LineWriter writer;
  qsizetype more = 2;
  for (const auto& [line, text] : changed_) more += text.size();
  for (const QByteArray& line : added_) more += line.size() + 2;
  writer.Reserve(bytes_.size() + more);
  const QByteArrayView old(bytes_);
  Place done = 0;
  const auto copy_to = [&](Place end) {
    writer.AddLines(old.sliced(static_cast<qsizetype>(done), static_cast<qsizetype>(end - done)));
  };
  for (const auto& [line, text] : changed_) {
    copy_to(line);
    writer.AddRaw(text);
    done = After(line);
  }
  copy_to(End());
  for (const QByteArray& line : added_) writer.AddRaw(line);
  return writer.Take();
}

void AppendToLedger(SaveSet& save, const QString& path, std::span<const LedgerRecord> records) {
  save.Append(path, WriteLedger({records.begin(), records.end()}));
}

}  // namespace kladez
