#include "books/prices/DocumentCopy.h"

#include "books/prices/TodaysPrices.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;
using H = DocumentHead;

DocumentDraft CopyOf(const DocumentDraft& document, const CopyChoice& choice, QDate today) {
  const DocumentDraft::Place& place = document.Where();
  const DocumentHead& head = document.Head();
  DocumentDraft copy = DocumentDraft::New(place, today);
  if (BookOf(place.kind).has_flag) {
    copy.SetParty(head.party);
  } else {
    copy.ChooseWarehouse(&H::party, head.party);
    copy.ChooseWarehouse(&H::destination, head.destination);
  }
  std::optional<TodaysPrices> prices;
  if (choice.todays_prices) {
    prices.emplace(place.data, place.session, place.kind, copy.Warehouse(), choice.price_list);
  }
  for (const DraftLine& line : document.Lines()) {
    const DocumentLine& old = line.line;
    GoodsPick pick{old.name, old.quantity, old.unit, old.cost, MoneyText(old.price)};
    if (const auto priced = prices ? prices->PickOf(old.name) : std::nullopt) {
      pick.unit = priced->unit;
      pick.cost = priced->cost;
      pick.price = priced->price;
    }
    copy.AddLine(pick);
  }
  copy.SetDiscount(choice.discount.isEmpty() ? head.discount : choice.discount);
  return copy;
}

}  // namespace kladez
