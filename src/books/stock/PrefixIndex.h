// Answers, for a list of names, which is the first one that begins with a text, letter case minded.
// A list of stock asks it for every record of every warehouse, so an answer costs about one
// look-up: the names sorted, those that begin with a text are neighbours, and a table gives the
// first in the list of any neighbours.
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
  int FirstBeginning(QByteArrayView text) const;

 private:
  struct Entry {
    quint64 head;  // the first eight bytes, for quick comparing
    int row;
  };
  using Entries = std::vector<Entry>;

  QByteArrayView NameOf(const Entry& entry) const { return names_[entry.row]; }
  bool Less(const Entry& a, const Entry& b) const;
  // The end of the neighbours from `from` on that begin with the text.
  size_t EndOfBeginning(size_t from, QByteArrayView text) const;
  int FirstRow(size_t from, size_t to) const;
  int Find(QByteArrayView text) const;

  std::vector<QByteArray> names_;
  Entries sorted_;
  std::vector<std::vector<int>> first_;  // [k][i]: lowest row of sorted_[i, i + 2^k)
  // Texts asked before, all the names themselves to begin with, and their answers.
  mutable TextPool asked_;
  mutable std::vector<int> answers_;
};

}  // namespace kladez
