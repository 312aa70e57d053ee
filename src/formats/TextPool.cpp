#include "formats/TextPool.h"

#include <QtEndian>
#include <algorithm>
#include <utility>

#include "formats/TextLines.h"

namespace kladez {
namespace {

quint64 Mixed(quint64 hash, quint64 word) {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
  return hash ^ (hash >> 32);
}

}  // namespace

quint32 TextPool::HashOf(QByteArrayView bytes) {
  constexpr qsizetype kWord = sizeof(quint64);
  const auto word_at = [&](qsizetype at) { return qFromUnaligned<quint64>(bytes.data() + at); };
  const qsizetype size = bytes.size();
  auto hash = static_cast<quint64>(size);
  if (size < kWord) {
    quint64 word = 0;
    for (const char c : bytes) word = word << 8 | static_cast<unsigned char>(c);
    hash = Mixed(hash, word);
  } else {
    for (qsizetype at = 0; at < size - kWord; at += kWord) hash = Mixed(hash, word_at(at));
    hash = Mixed(hash, word_at(size - kWord));
  }
  return static_cast<quint32>(Mixed(hash, 0));
}

void TextPool::Prefetch(quint32 hash) const {
  if (!slots_.empty()) __builtin_prefetch(&slots_[hash & (slots_.size() - 1)]);
}

size_t TextPool::SlotOf(QByteArrayView bytes, quint32 hash) const {
  size_t at = hash & (slots_.size() - 1);
  for (; slots_[at].number >= 0; at = (at + 1) & (slots_.size() - 1)) {
    if (slots_[at].hash == hash && Is(slots_[at].number, bytes)) break;
  }
  return at;
}

int TextPool::Add(QByteArrayView bytes, quint32 hash) {
  if (2 * texts_.size() >= slots_.size()) Grow();
  Slot& slot = slots_[SlotOf(bytes, hash)];
  if (slot.number < 0) {
    texts_.push_back(keeps_ == Keeps::kBytes ? Kept(bytes) : bytes);
    slot = {hash, Size() - 1};
  }
  return slot.number;
}

int TextPool::Find(QByteArrayView bytes) const {
  return slots_.empty() ? -1 : slots_[SlotOf(bytes, HashOf(bytes))].number;
}

QByteArrayView TextPool::Kept(QByteArrayView bytes) {
  constexpr qsizetype kBlock = 1 << 16;
  if (bytes.size() > room_) {
    room_ = std::max(kBlock, bytes.size());
    free_ = blocks_.emplace_back(std::make_unique_for_overwrite<char[]>(room_)).get();
  }
  const QByteArrayView kept(free_, bytes.size());
  std::copy(bytes.begin(), bytes.end(), free_);
  free_ += bytes.size();
  room_ -= bytes.size();
  return kept;
}

void TextPool::Grow() {
  constexpr size_t kFirstSlots = 64;
  const std::vector<Slot> before =
      std::exchange(slots_, std::vector<Slot>(std::max(kFirstSlots, 4 * texts_.size())));
  for (const Slot& slot : before) {
    if (slot.number < 0) continue;
    size_t at = slot.hash & (slots_.size() - 1);
    while (slots_[at].number >= 0) at = (at + 1) & (slots_.size() - 1);
    slots_[at] = slot;
  }
}

QString TextPool::Text(int number) const { return DecodeText(Bytes(number)); }

}  // namespace kladez
