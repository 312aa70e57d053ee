// Answers, for a list of names, which is the first one that begins with a text, letter case minded.
// A list of stock asks it for every record of every warehouse, most of which are names themselves,
// so each different text is looked for once and its answer remembered: in the sorted names, those
// that begin with a text are neighbours. Ledgers of one shop name their goods in much the same
// order, so what followed a text the last time is tried before any look-up.
#pragma once

#include <QByteArrayView>
#include <array>
#include <vector>

#include "formats/TextPool.h"

namespace kladez {

class PrefixIndex {
 public:
  // The names in the list's order, in the files' encoding; they outlive this.
  explicit PrefixIndex(std::vector<QByteArrayView> names);

  // The positions in the list of many texts, one after the other, -1 where no name begins so. Not
  // for several threads: it remembers.
  void FirstBeginnings(const std::vector<QByteArrayView>& texts, std::vector<int>& rows);

 private:
  struct Entry {
    quint64 head;  // the eight bytes after what all names begin with, for quick comparing
    int row;
  };

  // Headings of a list begin with a blank and with nothing that its goods begin with.
  struct Part {
    qsizetype common = 0;  // bytes that all its names begin with
    std::vector<Entry> sorted;

    quint64 HeadOf(QByteArrayView text) const;
  };

  QByteArrayView NameOf(const Entry& entry) const { return names_[entry.row]; }
  Part& PartOf(QByteArrayView text) { return parts_[text.startsWith(' ') ? 0 : 1]; }
  const Part& PartOf(QByteArrayView text) const { return parts_[text.startsWith(' ') ? 0 : 1]; }
  void Sort(Part& part);
  // The lowest row of the neighbours from `at` on that begin with the text.
  int FirstFrom(const Part& part, size_t at, QByteArrayView text) const;
  int Find(QByteArrayView text) const;
  int Numbered(int number, QByteArrayView text);

  std::vector<QByteArrayView> names_;
  std::array<Part, 2> parts_;  // the names that begin with a blank, and the others
  // Texts asked before, and by their numbers the answers and which text came next the last time.
  TextPool asked_;
  std::vector<int> answers_;
  std::vector<int> next_;
  int last_ = -1;
  size_t surprises_ = 0;         // among the texts asked together last
  std::vector<quint32> hashes_;  // of the texts that are asked together
};

}  // namespace kladez
