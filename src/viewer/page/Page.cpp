#include "viewer/page/Page.h"

namespace kladez::viewer {

QString Paragraph::Text() const {
  QString text;
  for (const Run& run : runs) {
    text += run.picture.isEmpty() ? run.text : QString(QChar(QChar::ObjectReplacementCharacter));
  }
  return text;
}

QString Cell::Text() const {
  QString text;
  for (const Block& block : blocks) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      text += paragraph->Text();
    } else {
      for (const Row& row : std::get<std::unique_ptr<Table>>(block)->rows) {
        for (const Cell& cell : row.cells) {
          text += cell.Text();
        }
      }
    }
  }
  return text;
}

QSizeF Page::PictureSize(const QString& name) const {
  const QSizeF size = pictures.at(name).size();
  const bool fits = widest_picture == 0 || size.width() <= widest_picture;
  return fits ? size : size * (widest_picture / size.width());
}

int Page::RowCount() const {
  int count = 0;
  for (const Block& block : blocks) {
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block)) {
      count += static_cast<int>((*table)->rows.size());
    }
  }
  return count;
}

}  // namespace kladez::viewer
