#include "ui/controls/ListRows.h"

#include <QGuiApplication>
#include <algorithm>

#include "ui/controls/Look.h"
#include "ui/controls/RecordModel.h"

namespace kladez {
namespace {

constexpr QChar kThinGap = QChar(0x2009);

bool IsNumberColumn(const QModelIndex& index) {
  const auto* records = qobject_cast<const RecordModel*>(index.model());
  return records != nullptr && records->Columns()[index.column()].number;
}

}  // namespace

QString WithThinGaps(const QString& number) {
  const qsizetype begin = number.startsWith(u'-') ? 1 : 0;
  qsizetype point = number.indexOf(u'.');
  if (point < 0) point = number.size();
  const auto is_digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  const bool plain =
      point > begin && std::all_of(number.begin() + begin, number.begin() + point, is_digit) &&
      std::all_of(number.begin() + std::min(point + 1, number.size()), number.end(), is_digit);
  if (!plain) return number;
  QString text = number;
  for (qsizetype at = point - 3; at > begin; at -= 3) text.insert(at, kThinGap);
  return text;
}

void ListRows::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (!IsNumberColumn(index)) return;
  option->font = look::NumberFont(option->font);
  option->fontMetrics = QFontMetrics(option->font);
  const QString text = WithThinGaps(option->text);
  if (text.startsWith(u'-') && text.size() > 1 && text[1].isDigit()) {
    option->palette.setColor(QPalette::Text, QColor(look::kWarning));
  }
  option->text = text;
}

// Half as high again as its letters, and no lower than three steps of the grid.
QSize ListRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  size.setHeight(std::max({size.height(), 3 * look::kGrid, option.fontMetrics.height() * 3 / 2}));
  return size;
}

}  // namespace kladez
