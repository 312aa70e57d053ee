#include "books/stock/StockLedger.h"

#include <bitset>
#include <queue>
#include <unordered_map>

#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using Lines = std::vector<QByteArrayView>;

// The lines that are equal to one name, handed out first line first. Lines change while a posting
// goes on, so a place that no longer holds the name is passed over when it comes up.
class Places {
 public:
  void Add(size_t line) { lines_.push(line); }

  // The first line that still holds the name.
  bool First(const Lines& all, QByteArrayView name, size_t* line) {
    while (!lines_.empty() && all[lines_.top()] != name) lines_.pop();
    if (lines_.empty()) return false;
    *line = lines_.top();
    return true;
  }

 private:
  std::priority_queue<size_t, std::vector<size_t>, std::greater<>> lines_;
};

// Where each name of a posting stands in the ledger, kept true while the posting changes lines.
class NameIndex {
 public:
  NameIndex(std::span<const QByteArray> names, const Lines& lines) : lines_(lines) {
    for (const QByteArray& name : names) {
      places_.try_emplace(QByteArrayView(name));
      marks_.set(Mark(name));
    }
    for (size_t i = 0; i < lines.size(); ++i) LineChanged(i);
  }

  // Tells that a line has a new text.
  void LineChanged(size_t line) {
    // Nearly every line is none of the names: one bit tells, without a hash.
    if (!marks_.test(Mark(lines_[line]))) return;
    const auto found = places_.find(lines_[line]);
    if (found != places_.end()) found->second.Add(line);
  }

  // The first line that holds the name and has a line after it to change.
  bool Find(QByteArrayView name, size_t* line) {
    return places_.find(name)->second.First(lines_, name, line) && *line + 1 < lines_.size();
  }

 private:
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
  const Lines& lines_;
  std::unordered_map<QByteArrayView, Places, Hash> places_;
  std::bitset<kMarks> marks_;
};

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

StockLedger::StockLedger(QByteArray bytes) : bytes_(std::move(bytes)) {
  for (LineReader reader(bytes_); !reader.AtEnd();) lines_.push_back(reader.NextRaw());
}

void StockLedger::AppendLine(QByteArray line) {
  lines_.push_back(new_lines_.emplace_back(std::move(line)));
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
  NameIndex index(names, lines_);
  for (size_t i = 0; i < records.size(); ++i) {
    size_t line = 0;
    if (index.Find(names[i], &line)) {
      const size_t quantity = line + 1;
      const QString text = Changed(posting, lines_[quantity], NumberOr(records[i].quantity));
      lines_[quantity] = new_lines_.emplace_back(EncodeText(text));
      index.LineChanged(quantity);
      continue;
    }
    for (const QByteArray* part : {&names[i], &quantities[i], &units[i]}) {
      AppendLine(*part);
      index.LineChanged(lines_.size() - 1);
    }
  }
}

QByteArray StockLedger::Bytes() const {
  qsizetype size = 0;
  for (const QByteArrayView line : lines_) size += line.size() + 2;
  LineWriter writer;
  writer.Reserve(size);
  for (const QByteArrayView line : lines_) writer.AddRaw(line);
  return writer.Take();
}

void AppendToLedger(SaveSet& save, const QString& path, std::span<const LedgerRecord> records) {
  save.Append(path, WriteLedger({records.begin(), records.end()}));
}

}  // namespace kladez
