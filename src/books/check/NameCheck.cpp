#include "books/check/NameCheck.h"

#include <algorithm>
#include <numeric>

#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Letters to change, add or drop to make one text of the other; `limit` + 1 where it is more.
int Distance(QStringView one, QStringView other, int limit) {
  if (std::abs(one.size() - other.size()) > limit) return limit + 1;
  std::vector<int> row(static_cast<size_t>(other.size()) + 1);
  std::iota(row.begin(), row.end(), 0);
  for (qsizetype i = 0; i < one.size(); ++i) {
    int diagonal = row[0];
    int least = row[0] = static_cast<int>(i) + 1;
    for (size_t k = 1; k < row.size(); ++k) {
      const int changed = diagonal + (one[i] == other[static_cast<qsizetype>(k) - 1] ? 0 : 1);
      diagonal = row[k];
      row[k] = std::min({row[k] + 1, row[k - 1] + 1, changed});
      least = std::min(least, row[k]);
    }
    if (least > limit) return limit + 1;
  }
  return row.back();
}

// A search through thousands of names for each of thousands would take longer than the check.
constexpr size_t kMostSearches = 200;
constexpr size_t kMostComparisons = 4'000'000;
// A longer name is a damaged file; to compare two of them takes time by their product.
constexpr qsizetype kLongestSearched = 200;

}  // namespace

size_t KnownNames::Number(QByteArrayView name) {
  const auto number = static_cast<size_t>(pool_.Add(name));
  if (number == names_.size()) names_.emplace_back();
  return number;
}

bool KnownNames::Add(QByteArrayView name) {
  Name& entry = names_[Number(name)];
  return !std::exchange(entry.known, true);
}

void KnownNames::Use(size_t number, const QString& file, int line) {
  Name& entry = names_[number];
  if (entry.known) return;
  if (entry.uses++ == 0) {
    entry.file = file;
    entry.line = line;
  }
}

std::optional<QString> KnownNames::Nearest(const QString& text) const {
  if (text.size() > kLongestSearched) return std::nullopt;
  const QString folded = FoldCase(text.simplified());
  int least = static_cast<int>(folded.size()) / 3 + 1;
  std::optional<QString> nearest;
  for (size_t number = 0; number < names_.size() && least > 0; ++number) {
    if (!names_[number].known) continue;
    const QString name = Text(number);
    if (name.size() > 2 * kLongestSearched) continue;
    const int distance = Distance(folded, FoldCase(name.simplified()), least - 1);
    if (distance >= least) continue;
    least = distance;
    nearest = name;
  }
  return nearest;
}

void KnownNames::TellUnknown(const QString& what, FindingList& findings) const {
  const size_t most = std::min(kMostSearches, kMostComparisons / (names_.size() + 1));
  size_t searches = 0;
  for (size_t number = 0; number < names_.size(); ++number) {
    const Name& name = names_[number];
    if (name.known || name.uses == 0) continue;
    const QString text = Text(number);
    QString told = what + u" «"_s + text + u"» нет в справочнике"_s;
    if (name.uses > 1) told += u" (мест: %1)"_s.arg(name.uses);
    const auto nearest = ++searches <= most ? Nearest(text) : std::nullopt;
    told += nearest ? u". Похоже на «"_s + *nearest + u"»."_s : u"."_s;
    findings.Add({name.file, name.line, told});
  }
}

}  // namespace kladez
