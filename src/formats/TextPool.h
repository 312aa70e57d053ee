// Keeps each text once and numbers it: half a million lines of documents and ledgers hold only some
// thousand different names, and whoever adds them up asks for one after the other.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <cstring>
#include <memory>
#include <vector>

namespace kladez {

class TextPool {
 public:
  // Whether the pool keeps the bytes of its texts, or only where they are: whoever adds them keeps
  // them then.
  enum class Keeps { kBytes, kPlaces };

  // Empty.
  explicit TextPool(Keeps keeps = Keeps::kBytes) : keeps_(keeps) {}
  TextPool(TextPool&&) = default;
  TextPool& operator=(TextPool&&) = default;

  // The number of the text, the same for equal bytes; numbers count from 0.
  int Add(QByteArrayView bytes) { return Add(bytes, HashOf(bytes)); }
  // The same in two steps: whoever asks for many texts has the memory of the next ones fetched
  // while it works on the ones before.
  static quint32 HashOf(QByteArrayView bytes);
  void Prefetch(quint32 hash) const;
  int Add(QByteArrayView bytes, quint32 hash);
  // The number of a text, -1 for one that was not added.
  int Find(QByteArrayView bytes) const;
  // How many different texts there are.
  int Size() const { return static_cast<int>(texts_.size()); }

  // A text by its number, which Add has given: as it was added, valid as long as the pool or its
  // owner; and decoded from Windows-1251.
  QByteArrayView Bytes(int number) const { return texts_[static_cast<size_t>(number)]; }
  // Whether the text of that number is these bytes.
  bool Is(int number, QByteArrayView bytes) const {
    const QByteArrayView text = Bytes(number);
    return text.size() == bytes.size() &&
           std::memcmp(text.data(), bytes.data(), static_cast<size_t>(bytes.size())) == 0;
  }
  QString Text(int number) const;

 private:
  // An open table: a look-up touches one slot and the text, and other texts only when their hashes
  // are the same.
  struct Slot {
    quint32 hash = 0;
    int number = -1;
  };

  // The slot of the text, or the free one where it belongs.
  size_t SlotOf(QByteArrayView bytes, quint32 hash) const;
  QByteArrayView Kept(QByteArrayView bytes);
  void Grow();

  Keeps keeps_;
  // The bytes of all texts, one after the other in blocks that never move.
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;  // in the last block
  qsizetype room_ = 0;
  std::vector<QByteArrayView> texts_;
  std::vector<Slot> slots_;  // a power of two, at most half full
};

}  // namespace kladez
