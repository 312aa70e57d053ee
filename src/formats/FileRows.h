// Rows of a long list that still lie in the bytes of their files, each taken apart only when it is
// asked for: a screen shows forty of a hundred thousand. What somebody changes or puts in is kept
// as a record beside them.
//
//   struct Source {
//     using Record = ...;  // a row taken apart, with ==
//     using Place = ...;   // where a row lies, small, with ==
//     Record Make(const Place& place) const;
//     bool operator==(const Source&) const;  // equal places are equal records then
//   };
#pragma once

#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kladez {

template <typename Source>
class FileRows {
 public:
  using Record = typename Source::Record;
  using Place = typename Source::Place;

  FileRows() = default;
  // A row at each of the places, in their order.
  FileRows(Source source, const std::vector<Place>& places) : source_(std::move(source)) {
    rows_.reserve(places.size());
    for (const Place& place : places) rows_.push_back({place, kInFile});
  }
  // Rows that no file holds.
  FileRows(std::vector<Record> records) : made_(std::move(records)) {  // NOLINT: meant to convert
    for (size_t i = 0; i < made_.size(); ++i) rows_.push_back({{}, static_cast<int>(i)});
  }

  // Rows count from 0. operator[] and what follows at() want one that is there; at() throws
  // std::out_of_range for another. A record is made anew each time it is asked for.
  size_t size() const { return rows_.size(); }
  bool empty() const { return rows_.empty(); }
  Record operator[](size_t row) const {
    return Ask(
        row, [this](const Place& place) { return source_.Make(place); },
        [](const Record& record) { return record; });
  }
  Record at(size_t row) const {
    if (row >= size()) throw std::out_of_range("no such row");
    return (*this)[row];
  }
  // All rows taken apart; what the places are places in.
  std::vector<Record> Records() const { return {begin(), end()}; }
  const Source& File() const { return source_; }

  // What is asked of a row without taking it apart: of its place, or of its record.
  template <typename OfPlace, typename OfRecord>
  auto Ask(size_t row, OfPlace of_place, OfRecord of_record) const {
    const Row& found = rows_[row];
    return found.made == kInFile ? of_place(found.place)
                                 : of_record(made_[static_cast<size_t>(found.made)]);
  }
  // Changes a row where it lies: of_place(Place&), or of_record(Record&) of one that was put in.
  template <typename OfPlace, typename OfRecord>
  void Change(size_t row, OfPlace of_place, OfRecord of_record) {
    Row& found = rows_[row];
    if (found.made == kInFile) {
      of_place(found.place);
    } else {
      of_record(made_[static_cast<size_t>(found.made)]);
    }
  }

  // Before the row, or at the end where the row is the number of rows.
  void Insert(size_t row, Record record) {
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(row), Made(std::move(record)));
  }
  // The row becomes the record; the row goes; two rows change places.
  void Set(size_t row, Record record) { rows_[row] = Made(std::move(record)); }
  void Erase(size_t row) { rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row)); }
  void Swap(size_t a, size_t b) { std::swap(rows_[a], rows_[b]); }

  bool operator==(const FileRows& other) const {
    if (size() != other.size()) return false;
    const bool one_file = source_ == other.source_;
    for (size_t i = 0; i < size(); ++i) {
      const Row& a = rows_[i];
      const Row& b = other.rows_[i];
      const bool both_in_it = one_file && a.made == kInFile && b.made == kInFile;
      if (both_in_it && a.place == b.place) continue;
      if (!((*this)[i] == other[i])) return false;
    }
    return true;
  }

  // One pass over the records, each made as it is come to.
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Record;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = Record;

    Iterator(const FileRows* rows, size_t at) : rows_(rows), at_(at) {}
    Record operator*() const { return (*rows_)[at_]; }
    Iterator& operator++() {
      ++at_;
      return *this;
    }
    Iterator operator++(int) { return {rows_, at_++}; }
    bool operator==(const Iterator& other) const { return at_ == other.at_; }

   private:
    const FileRows* rows_;
    size_t at_;
  };
  Iterator begin() const { return {this, 0}; }
  Iterator end() const { return {this, size()}; }

 private:
  static constexpr int kInFile = -1;
  struct Row {
    Place place;
    int made;  // which of the records it is
  };

  Row Made(Record record) {
    made_.push_back(std::move(record));
    return {{}, static_cast<int>(made_.size()) - 1};
  }

  Source source_;
  std::vector<Row> rows_;
  std::vector<Record> made_;
};

}  // namespace kladez
