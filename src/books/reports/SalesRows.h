// The rows of the sales report while it is made: oldest first, those of one day in the order of
// adding. Years of shipments have millions of rows, so that a row takes some eight bytes, and
// nothing is sorted: each day packs its rows one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>

namespace kladez {

struct SalesRow {
  int day_key;   // "yymmdd" as a number
  int name;      // texts are numbers of a pool, from 0
  int quantity;  // as written in the document
  int unit;
  double amount;  // after the discount, rounded to the kopeck

  bool operator==(const SalesRow&) const = default;
};

class SalesRows {
 public:
  SalesRows() = default;
  SalesRows(SalesRows&&) = default;
  SalesRows& operator=(SalesRows&&) = default;

  // Adds a row behind those of its day; how many there are.
  void Add(const SalesRow& row);
  size_t Count() const { return count_; }

 private:
  // In small pieces: growing never copies, nor asks for twice the room.
  using Bytes = std::deque<uint8_t>;
  using Days = std::map<int, Bytes>;

 public:
  // Goes through the rows in order; none may be added meanwhile.
  class Walk {
   public:
    // Before the first row of the first day.
    explicit Walk(const SalesRows& rows);
    // False after the last row, `row` as it was then.
    bool Next(SalesRow& row);

   private:
    uint64_t Number();

    Days::const_iterator day_;
    const Days::const_iterator end_;
    Bytes::const_iterator at_;
  };

 private:
  Days days_;
  Days::value_type* last_ = nullptr;  // the day that was added to
  size_t count_ = 0;
};

}  // namespace kladez
