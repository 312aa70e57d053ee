// Names are the keys of the books: goods, parties and warehouses are known by theirs alone. This
// gathers where names stand that their directory lacks, and finds the name that was meant.
#pragma once

#include <QByteArrayView>
#include <optional>
#include <vector>

#include "books/check/Findings.h"
#include "formats/TextPool.h"

namespace kladez {

class KnownNames {
 public:
  // A name of the directory; false where it stands there already.
  bool Add(QByteArrayView name);
  bool Contains(QByteArrayView name) { return IsKnown(Number(name)); }

  // The number of a name, known or not, the same for equal bytes; numbers count from 0.
  size_t Number(QByteArrayView name);
  bool IsKnown(size_t number) const { return names_[number].known; }
  QString Text(size_t number) const { return pool_.Text(static_cast<int>(number)); }
  size_t Count() const { return names_.size(); }

  // Notes a name that stands in a line of a file; only the first place of an unknown one is kept.
  void Use(size_t number, const QString& file, int line);

  // One finding for each unknown name: `what` is "Товара", "Клиента" in front of the name.
  void TellUnknown(const QString& what, FindingList& findings) const;

  // The known name that differs least from the text, at most by a third of its letters; case does
  // not count.
  std::optional<QString> Nearest(const QString& text) const;

 private:
  struct Name {
    bool known = false;
    int uses = 0;
    int line = 0;
    QString file;
  };

  TextPool pool_;
  std::vector<Name> names_;  // by number
};

}  // namespace kladez
