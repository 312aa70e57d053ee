// What a warehouse holds once a draft's lines are posted: what pickers and the editor tell beside a
// quantity. Nobody is hindered by it.
#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

#include "books/stock/DocumentDraft.h"

namespace kladez {

class DraftStock {
 public:
  // Reads what lies now in the warehouse that the draft's goods leave, of a receipt the one that
  // they come to; as "Наличие товаров" counts it. The draft outlives this; its lines are looked at
  // anew each time. Throws filesystem_error.
  explicit DraftStock(const DocumentDraft& draft);

  // What there is of the goods after all lines of the draft but one (-1: after all of them). Lines
  // that have posted before are in the ledger and do not count again. Nothing for goods that the
  // directory lacks.
  std::optional<double> OnHand(const QString& goods, int but_row = -1) const;

  // For each line, whether the warehouse runs out with it: the lines of the same goods above it
  // count first. None in a receipt, nor in a document that has posted.
  std::vector<bool> ShortLines() const;

 private:
  const DocumentDraft& draft_;
  QHash<QString, double> ledger_;
};

}  // namespace kladez
