#include "viewer/page/Page.h"

#include <algorithm>

namespace kladez::viewer {

QString Paragraph::Text() const {
  QString text;
  for (const Run& run : runs)
    text += run.picture.isEmpty() ? run.text : QString(QChar(QChar::ObjectReplacementCharacter));
  return text;
}

QString Cell::Text() const {
  QString text;
  for (const Block& block : blocks) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      text += paragraph->Text();
    } else {
      for (const Row& row : std::get<std::unique_ptr<Table>>(block)->rows)
        for (const Cell& cell : row.cells) text += cell.Text();
    }
  }
  return text;
}

bool Cell::IsBlank() const {
  for (const Block& block : blocks) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      for (const Run& run : paragraph->runs)
        if (!run.picture.isEmpty() || !QStringView(run.text).trimmed().isEmpty()) return false;
      continue;
    }
    for (const Row& row : std::get<std::unique_ptr<Table>>(block)->rows) {
      const auto is_blank = [](const Cell& cell) { return cell.IsBlank(); };
      if (!std::all_of(row.cells.begin(), row.cells.end(), is_blank)) return false;
    }
  }
  return true;
}

QSizeF Page::PictureSize(const QString& name) const {
  const auto told = told_sizes.find(name);
  const QSizeF size = told != told_sizes.end() ? told->second : QSizeF(pictures.at(name).size());
  const bool fits = widest_picture == 0 || size.width() <= widest_picture;
  return fits ? size : size * (widest_picture / size.width());
}

int Page::RowCount() const {
  int count = 0;
  for (const Block& block : blocks)
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block))
      count += static_cast<int>((*table)->rows.size());
  return count;
}

}  // namespace kladez::viewer
