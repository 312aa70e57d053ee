#include "demo/DemoTrade.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <vector>

#include "books/stock/DocumentDraft.h"
#include "demo/DemoGoods.h"
#include "formats/Numbers.h"

namespace kladez::demo {
namespace {

using namespace Qt::StringLiterals;

constexpr int kDaysBack = 364;
constexpr int kFirstReceiptDays = 24;  // the shelves fill in the first weeks
constexpr int kReceipts = 25;
constexpr int kShipments = 80;
constexpr int kTransfers = 4;

// The generator's numbers are fixed by the language; its distributions are not.
class Dice {
 public:
  int Roll(int least, int most) {
    return least + static_cast<int>(engine_() % static_cast<unsigned>(most - least + 1));
  }
  bool Chance(int percent) { return Roll(1, 100) <= percent; }

 private:
  std::mt19937 engine_{4801};
};

struct Event {
  int day;  // before today
  DocumentKind kind;
  int warehouse;  // 0 the main one, 1 the shop
  int supplier = -1;
};

class Trader {
 public:
  Trader(const DataDir& data, const Session& session, QDate today)
      : data_(data), session_(session), today_(today) {}

  void Run() {
    for (const Event& event : Events()) {
      switch (event.kind) {
        case DocumentKind::kReceipt:
          Receive(event);
          break;
        case DocumentKind::kShipment:
          Ship(event);
          break;
        case DocumentKind::kTransfer:
          Transfer(event);
          break;
      }
    }
  }

 private:
  // Each supplier delivers to the main warehouse in the first weeks, so that there is something to
  // sell; the rest is spread over the year, the last documents fall on today.
  std::vector<Event> Events() {
    std::vector<Event> events;
    const int suppliers = static_cast<int>(Suppliers().size());
    for (int i = 0; i < kReceipts; ++i) {
      const bool first = i < suppliers;
      const int day =
          first ? kDaysBack - i * kFirstReceiptDays / suppliers
                : kDaysBack - kFirstReceiptDays -
                      (i - suppliers) * (kDaysBack - kFirstReceiptDays) / (kReceipts - suppliers);
      events.push_back({day, DocumentKind::kReceipt, first || i % 3 != 0 ? 0 : 1, i % suppliers});
    }
    for (int i = 0; i < kTransfers; ++i) {
      events.push_back({kDaysBack - kFirstReceiptDays - 4 - i * 80, DocumentKind::kTransfer, 0});
    }
    const int selling_days = kDaysBack - kFirstReceiptDays - 5;
    for (int i = 0; i < kShipments; ++i) {
      // Business grows: the last weeks are the busiest, and the last shipment is today's.
      const double left = 1 - static_cast<double>(i) / (kShipments - 1);
      const int day = static_cast<int>(std::lround(selling_days * std::pow(left, 1.6)));
      events.push_back({day, DocumentKind::kShipment, i % 5 < 3 ? 0 : 1});
    }
    std::stable_sort(events.begin(), events.end(),
                     [](const Event& a, const Event& b) { return a.day > b.day; });
    return events;
  }

  const QString& Warehouse(int warehouse) const { return session_.warehouses[warehouse]; }

  DocumentDraft NewDraft(const Event& event) const {
    return DocumentDraft::New(
        {data_, session_, event.kind,
         event.kind == DocumentKind::kTransfer ? QString() : Warehouse(event.warehouse)},
        today_.addDays(-event.day));
  }

  static GoodsPick PickOf(const DemoItem& item, double quantity, const QString& price) {
    return {.name = item.name.toString(),
            .quantity = GeneralText(quantity),
            .unit = item.unit.toString(),
            .cost = FormatMoney(item.price),
            .price = price};
  }

  double Stock(int warehouse, const DemoItem& item) const {
    const auto found = stock_[warehouse].find(item.name);
    return found == stock_[warehouse].end() ? 0 : found->second;
  }

  // A supplier delivers the goods of one group, at about the price of the directory.
  void Receive(const Event& event) {
    DocumentDraft draft = NewDraft(event);
    draft.SetParty(Suppliers()[event.supplier].name.toString());
    const bool closed = event.day > 3;
    for (const DemoItem& item : Groups()[event.supplier].items) {
      if (!dice_.Chance(90)) continue;
      const double quantity = item.by_weight ? dice_.Roll(160, 480) / 4.0 : dice_.Roll(8, 30) * 12;
      const double price = item.price * (1 - dice_.Roll(0, 4) / 100.0);
      if (draft.AddLine(PickOf(item, quantity, FormatMoney(price))) && closed) {
        stock_[event.warehouse][item.name] += quantity;
      }
    }
    draft.SetClosed(closed);
    draft.Save();
  }

  // A client buys some goods that are there, at the list that suits it; wholesalers get a discount.
  void Ship(const Event& event) {
    const bool shop = event.warehouse == 1;
    const auto client = shop ? Clients().size() - 1 - (dice_.Chance(60) ? 0 : dice_.Roll(0, 10))
                             : static_cast<size_t>(dice_.Roll(0, 10));
    const int list = shop ? 0 : dice_.Roll(1, 2);
    DocumentDraft draft = NewDraft(event);
    draft.SetParty(Clients()[client].name.toString());
    const bool closed = dice_.Chance(event.day > 6 ? 93 : 50);
    for (const DemoItem* item : Basket(event.warehouse, shop ? 4 : 8)) {
      const double there = Stock(event.warehouse, *item);
      const int most = std::max(1, static_cast<int>(std::min(there / 3, shop ? 6.0 : 36.0)));
      const double quantity = item->by_weight ? dice_.Roll(2, 4 * most) / 4.0 : dice_.Roll(1, most);
      if (quantity > there) continue;
      if (draft.AddLine(PickOf(*item, quantity, SalePrice(item->price, list))) && closed) {
        stock_[event.warehouse][item->name] -= quantity;
      }
    }
    if (!shop && dice_.Chance(35)) draft.SetDiscount(GeneralText(dice_.Chance(50) ? 5 : 10));
    draft.SetClosed(closed);
    draft.Save();
  }

  void Transfer(const Event& event) {
    DocumentDraft draft = NewDraft(event);
    draft.ChooseWarehouse(&DocumentHead::party, Warehouse(0));
    draft.ChooseWarehouse(&DocumentHead::destination, Warehouse(1));
    for (const DemoGroup& group : Groups()) {
      for (const DemoItem& item : group.items) {
        const double quantity = std::floor(Stock(0, item) / 4);
        if (quantity < 1 || !dice_.Chance(70)) continue;
        if (!draft.AddLine(PickOf(item, quantity, SalePrice(item.price, 0)))) continue;
        stock_[0][item.name] -= quantity;
        stock_[1][item.name] += quantity;
      }
    }
    draft.Save();
  }

  std::vector<const DemoItem*> Basket(int warehouse, int most) {
    std::vector<const DemoItem*> there;
    for (const DemoGroup& group : Groups()) {
      for (const DemoItem& item : group.items) {
        if (Stock(warehouse, item) >= 3) there.push_back(&item);
      }
    }
    std::vector<const DemoItem*> basket;
    for (int left = dice_.Roll(2, most); left > 0 && !there.empty(); --left) {
      const auto at = there.begin() + dice_.Roll(0, static_cast<int>(there.size()) - 1);
      basket.push_back(*at);
      there.erase(at);
    }
    return basket;
  }

  const DataDir& data_;
  const Session& session_;
  const QDate today_;
  Dice dice_;
  std::array<std::map<QStringView, double>, 2> stock_;
};

}  // namespace

QString SalePrice(double purchase, int list) {
  return FormatMoney(std::round(purchase * (1 + kMarkUps.at(static_cast<size_t>(list))) * 10) / 10);
}

void Trade(const DataDir& data, const Session& session, QDate today) {
  Trader(data, session, today).Run();
}

}  // namespace kladez::demo
