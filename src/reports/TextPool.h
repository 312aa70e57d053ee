// Keeps each text of a report once: half a million lines hold only some thousand different names.
#pragma once

#include <QByteArray>
#include <deque>
#include <string_view>
#include <unordered_map>

#include "formats/TextLines.h"

namespace kladez {

class TextPool {
 public:
  // The number of the text, the same for equal bytes.
  int Add(QByteArrayView bytes) {
    const auto found = numbers_.find({bytes.data(), static_cast<size_t>(bytes.size())});
    if (found != numbers_.end()) return found->second;
    const QByteArray& kept = texts_.emplace_back(bytes.toByteArray());
    const int number = static_cast<int>(texts_.size()) - 1;
    numbers_.emplace(std::string_view(kept.constData(), static_cast<size_t>(kept.size())), number);
    return number;
  }
  QByteArrayView Bytes(int number) const { return texts_[static_cast<size_t>(number)]; }
  QString Text(int number) const { return DecodeText(Bytes(number)); }

 private:
  std::deque<QByteArray> texts_;  // a deque, so that the views of the map stay valid
  std::unordered_map<std::string_view, int> numbers_;
};

}  // namespace kladez
