#include "books/prices/ScannedGoods.h"

#include "books/stock/DocumentBook.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

int AddScanned(DocumentDraft& draft, const GoodsPick& pick) {
  const auto& lines = draft.Lines();
  for (size_t row = lines.size(); row-- > 0;) {
    const DocumentLine& line = lines[row].line;
    if (line.name != pick.name) continue;
    const QString quantity = GeneralText(RoundGeneral(NumberOr(line.quantity) + 1));
    const QString price = MoneyText(line.price);
    draft.ChangeLine(row, quantity, price, LineAmount(quantity, price).value_or(lines[row].amount));
    return static_cast<int>(row);
  }
  draft.AddLine(pick);
  return static_cast<int>(draft.Lines().size()) - 1;
}

}  // namespace kladez
