#include "books/stock/PrefixIndex.h"

#include <QtEndian>
#include <algorithm>
#include <utility>

namespace kladez {

PrefixIndex::PrefixIndex(std::vector<QByteArrayView> names) : names_(std::move(names)) {
  const int count = static_cast<int>(names_.size());
  for (int row = 0; row < count; ++row) {
    PartOf(names_[row]).sorted.push_back({0, row});
  }
  for (Part& part : parts_) Sort(part);
}

void PrefixIndex::Sort(Part& part) {
  if (part.sorted.empty()) return;
  const QByteArrayView first = NameOf(part.sorted.front());
  part.common = first.size();
  for (const Entry& entry : part.sorted) {
    const QByteArrayView name = NameOf(entry);
    const auto most = std::min(part.common, name.size());
    const auto differs = std::mismatch(name.begin(), name.begin() + most, first.begin());
    part.common = differs.first - name.begin();
  }
  for (Entry& entry : part.sorted) entry.head = part.HeadOf(NameOf(entry));
  std::sort(part.sorted.begin(), part.sorted.end(), [this](const Entry& a, const Entry& b) {
    if (a.head != b.head) return a.head < b.head;
    const int order = NameOf(a).compare(NameOf(b));
    return order != 0 ? order < 0 : a.row < b.row;
  });
}

quint64 PrefixIndex::Part::HeadOf(QByteArrayView text) const {
  char head[8] = {};
  const QByteArrayView rest = text.sliced(std::min(common, text.size()));
  std::copy_n(rest.begin(), std::min<qsizetype>(rest.size(), 8), head);
  return qFromBigEndian<quint64>(head);
}

// All walks of different texts together are no longer than all names have letters.
int PrefixIndex::FirstFrom(const Part& part, size_t at, QByteArrayView text) const {
  int first = part.sorted[at].row;
  while (++at < part.sorted.size() && NameOf(part.sorted[at]).startsWith(text)) {
    first = std::min(first, part.sorted[at].row);
  }
  return first;
}

int PrefixIndex::Find(QByteArrayView text) const {
  if (names_.empty() || text.isEmpty()) return names_.empty() ? -1 : 0;
  const Part& part = PartOf(text);
  if (part.sorted.empty()) return -1;
  // A text that leaves what all names begin with has no name to begin.
  const qsizetype shared = std::min(part.common, text.size());
  if (text.first(shared) != NameOf(part.sorted.front()).first(shared)) return -1;
  const quint64 head = part.HeadOf(text);
  const auto at =
      std::partition_point(part.sorted.begin(), part.sorted.end(), [&](const Entry& entry) {
        return entry.head != head ? entry.head < head : NameOf(entry).compare(text) < 0;
      });
  if (at == part.sorted.end() || !NameOf(*at).startsWith(text)) return -1;
  return FirstFrom(part, static_cast<size_t>(at - part.sorted.begin()), text);
}

// Remembers what came after the last text, and gives the answer.
int PrefixIndex::Numbered(int number, QByteArrayView text) {
  if (static_cast<size_t>(number) == answers_.size()) {
    answers_.push_back(Find(text));
    next_.push_back(-1);
  }
  if (last_ >= 0 && next_[last_] != number) {
    next_[last_] = number;
    ++surprises_;
  }
  last_ = number;
  return answers_[number];
}

void PrefixIndex::FirstBeginnings(const std::vector<QByteArrayView>& texts,
                                  std::vector<int>& rows) {
  rows.clear();
  const bool in_order = 2 * std::exchange(surprises_, 0) < texts.size();
  hashes_.clear();
  if (!in_order) {
    for (const QByteArrayView text : texts) {
      hashes_.push_back(TextPool::HashOf(text));
      asked_.Prefetch(hashes_.back());
    }
  }
  for (size_t i = 0; i < texts.size(); ++i) {
    int number = in_order && last_ >= 0 ? next_[last_] : -1;
    if (number < 0 || !asked_.Is(number, texts[i])) {
      number = in_order ? asked_.Add(texts[i]) : asked_.Add(texts[i], hashes_[i]);
    }
    rows.push_back(Numbered(number, texts[i]));
  }
}

}  // namespace kladez
