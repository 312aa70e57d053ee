// The goods in the lines of the documents that a register shows, gathered in one pass over their
// files, so that a search for goods asks for no file again.
#pragma once

#include <vector>

#include "books/stock/DocumentRegister.h"
#include "formats/Progress.h"

namespace kladez {

class DocumentGoods {
 public:
  // Reads the documents of the rows, which are those of a directory. Throws filesystem_error and
  // WorkCancelled.
  DocumentGoods(const DataDir& data, DocumentKind kind, const QString& directory,
                const std::vector<RegisterRow>& rows, const Progress& progress = {});

  // For each row whether one of its goods has the word, which is folded (FoldForWords).
  std::vector<bool> RowsWith(const QString& word) const;

 private:
  struct Lines {  // of a row, in goods_
    size_t begin = 0;
    size_t end = 0;
  };
  std::vector<Lines> lines_;
  std::vector<int> goods_;  // places in names_
  std::vector<QString> names_;
};

}  // namespace kladez
