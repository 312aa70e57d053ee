// How the rows of a list are painted: high enough for eyes that read them all day, numbers in
// figures of equal width, in groups of three by thin gaps, those below zero in red. The texts of
// the cells, which are copied and read out, stay without gaps.
#pragma once

#include <QStyledItemDelegate>

namespace kladez {

class ListRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

// "1234567.50" with thin gaps between its thousands; any other text as it is.
QString WithThinGaps(const QString& number);

}  // namespace kladez
