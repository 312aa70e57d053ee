#include "books/stock/PrefixIndex.h"

#include <QtEndian>
#include <algorithm>
#include <utility>

namespace kladez {

PrefixIndex::PrefixIndex(std::vector<QByteArrayView> names) : names_(std::move(names)) {
  if (!names_.empty()) common_ = names_.front().size();
  for (const QByteArrayView name : names_) {
    const auto most = std::min(common_, name.size());
    const auto differs = std::mismatch(name.begin(), name.begin() + most, names_.front().begin());
    common_ = differs.first - name.begin();
  }
  const int count = static_cast<int>(names_.size());
  sorted_.reserve(names_.size());
  for (int row = 0; row < count; ++row) sorted_.push_back({HeadOf(names_[row]), row});
  std::sort(sorted_.begin(), sorted_.end(), [this](const Entry& a, const Entry& b) {
    if (a.head != b.head) return a.head < b.head;
    const int order = NameOf(a).compare(NameOf(b));
    return order != 0 ? order < 0 : a.row < b.row;
  });
}

quint64 PrefixIndex::HeadOf(QByteArrayView text) const {
  char head[8] = {};
  const QByteArrayView rest = text.sliced(std::min(common_, text.size()));
  std::copy_n(rest.begin(), std::min<qsizetype>(rest.size(), 8), head);
  return qFromBigEndian<quint64>(head);
}

// All walks of different texts together are no longer than all names have letters.
int PrefixIndex::FirstFrom(size_t at, QByteArrayView text) const {
  int first = sorted_[at].row;
  while (++at < sorted_.size() && NameOf(sorted_[at]).startsWith(text)) {
    first = std::min(first, sorted_[at].row);
  }
  return first;
}

int PrefixIndex::Find(QByteArrayView text) const {
  // A text that leaves what all names begin with has no name to begin.
  const qsizetype shared = std::min(common_, text.size());
  if (names_.empty() || text.first(shared) != names_.front().first(shared)) return -1;
  const quint64 head = HeadOf(text);
  const auto at = std::partition_point(sorted_.begin(), sorted_.end(), [&](const Entry& entry) {
    return entry.head != head ? entry.head < head : NameOf(entry).compare(text) < 0;
  });
  if (at == sorted_.end() || !NameOf(*at).startsWith(text)) return -1;
  return FirstFrom(static_cast<size_t>(at - sorted_.begin()), text);
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
    if (number < 0 || asked_.Bytes(number) != texts[i]) {
      number = in_order ? asked_.Add(texts[i]) : asked_.Add(texts[i], hashes_[i]);
    }
    rows.push_back(Numbered(number, texts[i]));
  }
}

}  // namespace kladez
