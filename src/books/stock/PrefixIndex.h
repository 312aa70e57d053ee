// Answers, for a list of names, which is the first one that begins with a text, letter case minded.
// A list of stock asks it for every record of every warehouse, most of which are names themselves,
// so each different text is looked for once and its answer remembered: in the sorted names, those
// that begin with a text are neighbours.
#pragma once

#include <QByteArray>
#include <vector>

#include "formats/TextPool.h"

namespace kladez {

class PrefixIndex {
 public:
  // The names in the list's order, in the files' encoding.
  explicit PrefixIndex(std::vector<QByteArray> names);

  // The position in the list, -1 where no name begins so. Not for several threads: it remembers.
  int FirstBeginning(QByteArrayView text) { return Answer(text, TextPool::HashOf(text)); }
  // The same for many texts, quicker: `rows` gets as many positions.
  void FirstBeginnings(const std::vector<QByteArrayView>& texts, std::vector<int>& rows);

 private:
  struct Entry {
    quint64 head;  // the first eight bytes, for quick comparing
    int row;
  };

  QByteArrayView NameOf(const Entry& entry) const { return names_[entry.row]; }
  bool Less(const Entry& a, const Entry& b) const;
  int Answer(QByteArrayView text, quint32 hash);
  // The lowest row of the neighbours from `at` on that begin with the text.
  int FirstFrom(size_t at, QByteArrayView text) const;
  int Find(QByteArrayView text) const;

  std::vector<QByteArray> names_;
  std::vector<Entry> sorted_;
  // Texts asked before, all the names themselves to begin with, and their answers.
  TextPool asked_;
  std::vector<int> answers_;
  std::vector<quint32> hashes_;  // of the texts that are asked together
};

}  // namespace kladez
