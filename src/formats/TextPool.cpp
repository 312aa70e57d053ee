#include "formats/TextPool.h"

#include <QHashFunctions>
#include <limits>
#include <new>

#include "formats/TextLines.h"

namespace kladez {

quint32 TextPool::HashOf(QByteArrayView bytes) { return static_cast<quint32>(qHash(bytes)); }

void TextPool::Prefetch(quint32 hash) const {
  if (!slots_.empty()) __builtin_prefetch(&slots_[hash & (slots_.size() - 1)]);
}

int TextPool::Add(QByteArrayView bytes, quint32 hash) {
  if (2 * texts_.size() >= slots_.size()) Grow();
  size_t at = hash & (slots_.size() - 1);
  for (; slots_[at].number >= 0; at = (at + 1) & (slots_.size() - 1)) {
    if (slots_[at].hash == hash && Bytes(slots_[at].number) == bytes) return slots_[at].number;
  }
  slots_[at] = {hash, Size()};
  if (bytes_.size() + static_cast<size_t>(bytes.size()) > std::numeric_limits<quint32>::max()) {
    throw std::bad_alloc();
  }
  texts_.push_back({static_cast<quint32>(bytes_.size()), static_cast<quint32>(bytes.size())});
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  return Size() - 1;
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

QByteArrayView TextPool::Bytes(int number) const {
  const Place& place = texts_[static_cast<size_t>(number)];
  return {bytes_.data() + place.begin, static_cast<qsizetype>(place.size)};
}

QString TextPool::Text(int number) const { return DecodeText(Bytes(number)); }

}  // namespace kladez
