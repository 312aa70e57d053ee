#include "books/reports/SalesRows.h"

#include <array>
#include <bit>
#include <cmath>

namespace kladez {
namespace {

// Seven bits a byte, the lowest first; the eighth says that more follow.
class Packed {
 public:
  void Add(uint64_t number) {
    for (; number >= 0x80; number >>= 7) bytes_[size_++] = static_cast<uint8_t>(number | 0x80);
    bytes_[size_++] = static_cast<uint8_t>(number);
  }
  const uint8_t* begin() const { return bytes_.data(); }
  const uint8_t* end() const { return bytes_.data() + size_; }

 private:
  static constexpr size_t kLongest = 10;
  std::array<uint8_t, 5 * kLongest> bytes_;
  size_t size_ = 0;
};

// An amount is told by its kopecks, with the sign in the last bit but one and the last bit clear;
// one that is not a whole number of them, or is too large, by a 1 and its own bits.
constexpr uint64_t kAsItIs = 1;
constexpr double kMostKopecks = 1e15;

void AddAmount(Packed& packed, double amount) {
  const double kopecks = std::round(amount * 100);
  if (std::fabs(kopecks) < kMostKopecks && kopecks / 100 == amount) {
    const auto whole = static_cast<uint64_t>(std::fabs(kopecks));
    packed.Add(whole << 2 | (kopecks < 0 ? 2 : 0));
  } else {
    packed.Add(kAsItIs);
    packed.Add(std::bit_cast<uint64_t>(amount));
  }
}

}  // namespace

void SalesRows::Add(const SalesRow& row) {
  if (last_ == nullptr || last_->first != row.day_key) {
    last_ = &*days_.try_emplace(row.day_key).first;
  }
  Packed packed;
  for (const int text : {row.name, row.quantity, row.unit}) packed.Add(static_cast<uint64_t>(text));
  AddAmount(packed, row.amount);
  last_->second.insert(last_->second.end(), packed.begin(), packed.end());
  ++count_;
}

SalesRows::Walk::Walk(const SalesRows& rows) : day_(rows.days_.begin()), end_(rows.days_.end()) {
  if (day_ != end_) at_ = day_->second.begin();
}

bool SalesRows::Walk::Next(SalesRow& row) {
  if (day_ == end_) return false;
  if (at_ == day_->second.end()) {
    if (++day_ == end_) return false;
    at_ = day_->second.begin();
  }
  row.day_key = day_->first;
  for (int* text : {&row.name, &row.quantity, &row.unit}) *text = static_cast<int>(Number());
  const uint64_t amount = Number();
  if (amount == kAsItIs) {
    row.amount = std::bit_cast<double>(Number());
  } else {
    const double whole = static_cast<double>(amount >> 2) / 100;
    row.amount = (amount & 2) != 0 ? -whole : whole;
  }
  return true;
}

uint64_t SalesRows::Walk::Number() {
  uint64_t number = 0;
  for (int shift = 0;; shift += 7) {
    const uint8_t byte = *at_++;
    number |= static_cast<uint64_t>(byte & 0x7F) << shift;
    if (byte < 0x80) return number;
  }
}

}  // namespace kladez
