#include "books/stock/PrefixIndex.h"

#include <QtEndian>
#include <algorithm>
#include <bit>

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

  std::vector<int> rows;
  rows.reserve(names_.size());
  for (const Entry& entry : sorted_) rows.push_back(entry.row);
  first_.push_back(std::move(rows));
  for (size_t half = 1; 2 * half <= sorted_.size(); half *= 2) {
    const std::vector<int>& finer = first_.back();
    std::vector<int> coarser(finer.size() - half);
    for (size_t i = 0; i < coarser.size(); ++i) coarser[i] = std::min(finer[i], finer[i + half]);
    first_.push_back(std::move(coarser));
  }

  answers_.reserve(names_.size());
  for (size_t i = 0; i < sorted_.size(); ++i) {
    const QByteArrayView name = NameOf(sorted_[i]);
    if (i > 0 && NameOf(sorted_[i - 1]) == name) continue;
    asked_.Add(name);
    answers_.push_back(FirstRow(i, EndOfBeginning(i, name)));
  }
}

bool PrefixIndex::Less(const Entry& a, const Entry& b) const {
  if (a.head != b.head) return a.head < b.head;
  const QByteArrayView left = NameOf(a);
  const QByteArrayView right = NameOf(b);
  const int order = left.compare(right);
  return order != 0 ? order < 0 : a.row < b.row;
}

size_t PrefixIndex::EndOfBeginning(size_t from, QByteArrayView text) const {
  // Most names begin no other, so the end is looked for near by first.
  size_t step = 1;
  while (from + step < sorted_.size() && NameOf(sorted_[from + step]).startsWith(text)) step *= 2;
  const auto begin = sorted_.begin() + static_cast<ptrdiff_t>(from + step / 2);
  const auto end = sorted_.begin() + static_cast<ptrdiff_t>(std::min(from + step, sorted_.size()));
  return std::partition_point(begin, end,
                              [&](const Entry& entry) { return NameOf(entry).startsWith(text); }) -
         sorted_.begin();
}

int PrefixIndex::FirstRow(size_t from, size_t to) const {
  const auto level = static_cast<size_t>(std::bit_width(to - from) - 1);
  const std::vector<int>& first = first_[level];
  return std::min(first[from], first[to - (size_t{1} << level)]);
}

int PrefixIndex::FirstBeginning(QByteArrayView text) const {
  const auto number = static_cast<size_t>(asked_.Add(text));
  if (number == answers_.size()) answers_.push_back(Find(text));
  return answers_[number];
}

int PrefixIndex::Find(QByteArrayView text) const {
  const quint64 head = HeadOf(text);
  const auto at = std::partition_point(sorted_.begin(), sorted_.end(), [&](const Entry& entry) {
    return entry.head != head ? entry.head < head : NameOf(entry).compare(text) < 0;
  });
  if (at == sorted_.end() || !NameOf(*at).startsWith(text)) return -1;
  const auto from = static_cast<size_t>(at - sorted_.begin());
  return FirstRow(from, EndOfBeginning(from, text));
}

}  // namespace kladez
