// What the demonstration books are made of: invented goods and parties of a small wholesaler.
#pragma once

#include <QStringView>
#include <span>

#include "formats/PartyFile.h"

namespace kladez::demo {

struct DemoItem {
  QStringView name;
  QStringView country;
  QStringView declaration;  // empty for goods made in Russia
  QStringView unit;
  double price;  // purchase price
  bool by_weight = false;
};

struct DemoGroup {
  QStringView name;  // without the leading blank
  std::span<const DemoItem> items;
};

std::span<const DemoGroup> Groups();

struct DemoParty {
  QStringView name;
  QStringView address;
  QStringView phone;
  QStringView contact;
  QStringView bank;
  QStringView city;
  QStringView tax_number;
};

std::span<const DemoParty> Firms();
std::span<const DemoParty> Suppliers();
std::span<const DemoParty> Clients();

// The lines of a party's record; what the table above does not hold is made up from its place in
// the list, so that every account and code differs.
Party RecordOf(PartyKind kind, const DemoParty& party, int index);

}  // namespace kladez::demo
