#include "formats/TextPool.h"

#include <QHashFunctions>

#include "formats/TextLines.h"

namespace kladez {

int TextPool::Add(QByteArrayView bytes) {
  if (2 * texts_.size() >= slots_.size()) Grow();
  const auto hash = static_cast<quint32>(qHash(bytes));
  size_t at = hash & (slots_.size() - 1);
  for (; slots_[at].number >= 0; at = (at + 1) & (slots_.size() - 1)) {
    if (slots_[at].hash == hash && Bytes(slots_[at].number) == bytes) return slots_[at].number;
  }
  slots_[at] = {hash, Size()};
  texts_.push_back({bytes_.size(), static_cast<size_t>(bytes.size())});
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
