#include "books/stock/PrefixIndex.h"

#include <QtEndian>
#include <algorithm>

namespace kladez {
namespace {

quint64 HeadOf(QByteArrayView name) {
  char head[8] = {};
  std::copy_n(name.data(), std::min<qsizetype>(name.size(), 8), head);
  return qFromBigEndian<quint64>(head);
}

}  // namespace

PrefixIndex::PrefixIndex(std::vector<QByteArray> names) : names_(std::move(names)) {
  const int count = static_cast<int>(names_.size());
  sorted_.reserve(names_.size());
  for (int row = 0; row < count; ++row) sorted_.push_back({HeadOf(names_[row]), row});
  std::sort(sorted_.begin(), sorted_.end(),
            [this](const Entry& a, const Entry& b) { return Less(a, b); });
  answers_.reserve(names_.size());
  for (size_t i = 0; i < sorted_.size(); ++i) {
    const QByteArrayView name = NameOf(sorted_[i]);
    if (i > 0 && NameOf(sorted_[i - 1]) == name) continue;
    asked_.Add(name);
    answers_.push_back(FirstFrom(i, name));
  }
}

bool PrefixIndex::Less(const Entry& a, const Entry& b) const {
  if (a.head != b.head) return a.head < b.head;
  const int order = NameOf(a).compare(NameOf(b));
  return order != 0 ? order < 0 : a.row < b.row;
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
  const quint64 head = HeadOf(text);
  const auto at = std::partition_point(sorted_.begin(), sorted_.end(), [&](const Entry& entry) {
    return entry.head != head ? entry.head < head : NameOf(entry).compare(text) < 0;
  });
  if (at == sorted_.end() || !NameOf(*at).startsWith(text)) return -1;
  return FirstFrom(static_cast<size_t>(at - sorted_.begin()), text);
}

int PrefixIndex::Answer(QByteArrayView text, quint32 hash) {
  const auto number = static_cast<size_t>(asked_.Add(text, hash));
  if (number == answers_.size()) answers_.push_back(Find(text));
  return answers_[number];
}

void PrefixIndex::FirstBeginnings(const std::vector<QByteArrayView>& texts,
                                  std::vector<int>& rows) {
  hashes_.clear();
  rows.clear();
  for (const QByteArrayView text : texts) {
    hashes_.push_back(TextPool::HashOf(text));
    asked_.Prefetch(hashes_.back());
  }
  for (size_t i = 0; i < texts.size(); ++i) rows.push_back(Answer(texts[i], hashes_[i]));
}

}  // namespace kladez
