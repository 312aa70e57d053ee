// Finds a name in a list by what somebody types: first by its beginning; where no name begins so,
// by all the words of the text in any order and in any place of the name, "ё" as "е", whichever
// layout the keyboard was in. Letter case never counts.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace kladez {

class NameSearch {
 public:
  // Names are folded once, so that each key in a list of a hundred thousand costs milliseconds.
  void Clear() { names_.clear(); }
  void Add(QStringView name);
  size_t Size() const { return names_.size(); }

  // The row of the first name that begins with the text, blanks at its beginning included, or else
  // of the first that contains its words; -1 where there is none.
  int First(QStringView text) const;
  // The next row after `row` of which either holds, going round at the end; -1 where there is none.
  int Next(QStringView text, int row) const;

 private:
  std::vector<QString> names_;  // upper-cased
};

// A name as words are looked for in it: upper-cased, "ё" as "е".
QString FoldForWords(QStringView name);
// The words of what somebody types, folded so.
QStringList WordsToFind(QStringView text);

// The same text typed with the keyboard in its other layout: Latin letters for Cyrillic ones where
// it has any, else Cyrillic for Latin ("xfq" is "чай").
QString InOtherLayout(QStringView text);

}  // namespace kladez
