// The names of the files of one directory, in the order in which everything lists them: by the
// upper-cased name, code by code. A folder of years holds 100,000 names and more, so they are kept
// and compared as bytes.
#pragma once

#include <QString>
#include <vector>

#include "system/OpenFile.h"

namespace kladez {

class FileNames {
 public:
  // The plain files of an open directory whose names end in `extension`, whatever its case. 0 or an
  // errno.
  int Read(const syscalls::OpenFile& directory, QStringView extension);

  // How many there are; places go from 0.
  qsizetype Count() const { return static_cast<qsizetype>(entries_.size()); }
  // As the file system wants it.
  const char* At(qsizetype place) const { return text_.data() + entries_[place].name; }
  // As people see it. `into` keeps its room, so that a walk over all names allocates once.
  void ToText(qsizetype place, QString& into) const;

 private:
  // Names that begin alike in eight bytes are compared on by their keys.
  struct Entry {
    quint64 head;  // of the key
    quint32 name;  // where they begin in text_, each ended by a NUL
    quint32 key;   // the name itself, or the folded form of one that is not plain ASCII
  };

  void Add(const char* name, QStringView extension);
  quint32 Keep(const QByteArray& text);
  bool Less(const Entry& a, const Entry& b) const;

  std::vector<Entry> entries_;
  std::vector<char> text_;
};

}  // namespace kladez
