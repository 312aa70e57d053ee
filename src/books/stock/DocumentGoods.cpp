#include "books/stock/DocumentGoods.h"

#include <QHash>
#include <algorithm>

#include "formats/NameSearch.h"

namespace kladez {

DocumentGoods::DocumentGoods(const DataDir& data, DocumentKind kind, const QString& directory,
                             const std::vector<RegisterRow>& rows, const Progress& progress)
    : lines_(rows.size()) {
  QHash<QString, size_t> places;
  places.reserve(static_cast<qsizetype>(rows.size()));
  for (size_t i = 0; i < rows.size(); ++i) places.insert(rows[i].file, i);
  TextPool names;
  int until_progress = 0;
  const auto visit = [&](ScannedDocument& document) {
    constexpr int kFilesBetweenProgress = 64;
    if (until_progress-- == 0) {
      until_progress = kFilesBetweenProgress;
      progress.Tell(document.Part());
    }
    Lines& lines = lines_[places.value(document.File())];
    lines.begin = goods_.size();
    while (document.NextLine()) goods_.push_back(names.Add(document.Line(&DocumentLine::name)));
    lines.end = goods_.size();
    return true;
  };
  ScanDocuments(data, kind, directory, Unreadable::kStop, visit,
                [&](const QString& file) { return places.contains(file); });
  for (int i = 0; i < names.Size(); ++i) names_.push_back(FoldForWords(names.Text(i)));
}

std::vector<bool> DocumentGoods::RowsWith(const QString& word) const {
  std::vector<bool> has(names_.size());
  for (size_t i = 0; i < names_.size(); ++i) has[i] = names_[i].contains(word);
  std::vector<bool> rows(lines_.size());
  for (size_t i = 0; i < lines_.size(); ++i) {
    rows[i] = std::any_of(goods_.begin() + static_cast<std::ptrdiff_t>(lines_[i].begin),
                          goods_.begin() + static_cast<std::ptrdiff_t>(lines_[i].end),
                          [&](int goods) { return has[static_cast<size_t>(goods)]; });
  }
  return rows;
}

}  // namespace kladez
