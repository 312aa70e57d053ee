// Keeps each text once and numbers it: half a million lines of documents and ledgers hold only some
// thousand different names, and whoever adds them up asks for one after the other.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace kladez {

class TextPool {
 public:
  // The number of the text, the same for equal bytes; numbers count from 0.
  int Add(QByteArrayView bytes) { return Add(bytes, HashOf(bytes)); }
  // The same in two steps: whoever asks for many texts has the memory of the next ones fetched
  // while it works on the ones before.
  static quint32 HashOf(QByteArrayView bytes);
  void Prefetch(quint32 hash) const;
  int Add(QByteArrayView bytes, quint32 hash);
  int Size() const { return static_cast<int>(texts_.size()); }

  // Valid until a text is added.
  QByteArrayView Bytes(int number) const;
  QString Text(int number) const;

 private:
  struct Place {
    quint32 begin;
    quint32 size;
  };
  // An open table: a look-up touches one slot and the text, and other texts only when their hashes
  // are the same.
  struct Slot {
    quint32 hash = 0;
    int number = -1;
  };

  void Grow();

  std::vector<char> bytes_;  // of all texts, one after the other
  std::vector<Place> texts_;
  std::vector<Slot> slots_;  // a power of two, at most half full
};

}  // namespace kladez
