#include "books/check/Findings.h"

#include <algorithm>

#include "formats/Ordering.h"

namespace kladez {

std::vector<Finding> FindingList::Take() {
  Order();
  return std::move(findings_);
}

void FindingList::Order() {
  std::vector<std::pair<QString, size_t>> keys;
  for (size_t i = 0; i < findings_.size(); ++i) keys.emplace_back(FoldCase(findings_[i].file), i);
  std::stable_sort(keys.begin(), keys.end(), [this](const auto& a, const auto& b) {
    return a.first != b.first ? a.first < b.first
                              : findings_[a.second].line < findings_[b.second].line;
  });
  const size_t kept = std::min(keys.size(), static_cast<size_t>(kMostFindings));
  untold_ += static_cast<qsizetype>(keys.size() - kept);
  std::vector<Finding> ordered;
  for (size_t i = 0; i < kept; ++i) ordered.push_back(std::move(findings_[keys[i].second]));
  findings_ = std::move(ordered);
}

}  // namespace kladez
