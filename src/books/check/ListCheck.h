// Reads the lists of a Database strictly: goods, parties, warehouses and their folders, the
// currency, ticks, ledgers and price lists.
#pragma once

#include <optional>

#include "books/check/DocumentCheck.h"
#include "books/store/Session.h"

namespace kladez {

class ListCheck {
 public:
  // All outlive the check. `base` is the Database's path, "0001\".
  ListCheck(const DataDir& data, const QString& base, FindingList& findings, int& files)
      : data_(data), base_(base), findings_(findings), files_(files) {}

  // These fill the names, which all that follows refers to.
  void CheckGoods(KnownNames& goods);
  void CheckParties(PartyKind kind, KnownNames& names);
  void CheckWarehouses(QStringList& warehouses);

  // Whether the words of the currency are all there; whether what is marked are goods.
  void CheckCurrency();
  void CheckMarks(const KnownNames& goods);
  // Folders that look like a warehouse and stand in no list.
  void CheckFolders(const QStringList& warehouses);
  void CheckLedger(const QString& warehouse, int place, KnownNames& goods, StockCheck& stock);
  void CheckPrices(const QString& warehouse, KnownNames& goods);

  // The bytes of a file below the Database; nothing, with a finding, where it can't be read.
  std::optional<QByteArray> Read(const QString& file);
  void Tell(const QString& file, int line, const QString& text, Repair repair = Repair::kNone);

 private:
  // Takes the lines of a file apart; false where it can't be read. Empty lines at the end are told
  // and left out of Count().
  bool ReadLines(const QString& file);
  size_t Count() const { return count_; }
  QByteArrayView Line(size_t place) const { return lines_.Lines()[place]; }
  // Calls visit(place of the first line) for each record of `size` lines; the last, cut one is told
  // instead. A line that begins with a blank is a group of one line where `groups` says so.
  template <typename Visit>
  void ForEachRecord(const QString& file, size_t size, bool groups, Visit&& visit);
  void CheckPriceRows(const QString& file, KnownNames& goods);

  const DataDir& data_;
  const QString base_;
  FindingList& findings_;
  int& files_;  // read
  QByteArray bytes_;
  StrictLines lines_;
  size_t count_ = 0;
};

}  // namespace kladez
