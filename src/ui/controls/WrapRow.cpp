#include "ui/controls/WrapRow.h"

#include <QHBoxLayout>
#include <QWidget>
#include <algorithm>

namespace kladez {

WrapRow::WrapRow(int gap, int line_gap) : gap_(gap), line_gap_(line_gap) {
  setContentsMargins(0, 0, 0, 0);
}

// A layout takes itself out of the one around it when it goes.
WrapRow::~WrapRow() {
  while (!items_.isEmpty()) delete items_.takeLast();
}

void WrapRow::AddGroup(std::initializer_list<QWidget*> widgets, int gap) {
  auto* group = new QHBoxLayout;
  group->setSpacing(gap);
  for (QWidget* widget : widgets) {
    if (widget != nullptr) group->addWidget(widget);
  }
  addChildLayout(group);
  addItem(group);
}

QLayoutItem* WrapRow::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

int WrapRow::heightForWidth(int width) const {
  const QMargins margins = contentsMargins();
  const QRect room(0, 0, width - margins.left() - margins.right(), 0);
  return Arrange(room, false) + margins.top() + margins.bottom();
}

QSize WrapRow::minimumSize() const {
  QSize size;
  for (const QLayoutItem* item : items_) size = size.expandedTo(item->minimumSize());
  return size.grownBy(contentsMargins());
}

QSize WrapRow::sizeHint() const {
  QSize size(-gap_, 0);
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    size.rwidth() += item->sizeHint().width() + gap_;
    size.setHeight(std::max(size.height(), item->sizeHint().height()));
  }
  return size.expandedTo(QSize(0, 0)).grownBy(contentsMargins());
}

void WrapRow::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  QRect room = contentsRect();
  // Where there is more height than the lines take, they stand in the middle of it.
  room.adjust(0, std::max(0, (room.height() - Arrange(room, false)) / 2), 0, 0);
  Arrange(room, true);
}

int WrapRow::Arrange(const QRect& rect, bool apply) const {
  int top = rect.top();
  int first = 0;
  int used = 0;
  int height = 0;
  for (int i = 0; i < count(); ++i) {
    if (items_[i]->isEmpty()) continue;
    const QSize size = items_[i]->sizeHint();
    if (used > 0 && used + gap_ + size.width() > rect.width()) {
      if (apply) PlaceLine(rect, top, height, first, i);
      top += height + line_gap_;
      first = i;
      used = 0;
      height = 0;
    }
    used += (used > 0 ? gap_ : 0) + size.width();
    height = std::max(height, size.height());
  }
  if (apply) PlaceLine(rect, top, height, first, count());
  return top + height - rect.top();
}

void WrapRow::PlaceLine(const QRect& rect, int top, int height, int first, int end) const {
  const auto place = [&](int i, int x) {
    const int width = std::min(items_[i]->sizeHint().width(), rect.width());
    items_[i]->setGeometry(QRect(x, top, width, height));
    return width;
  };
  const int first_right = first_right_ < 0 ? end : std::clamp(first_right_, first, end);
  int left = rect.left();
  for (int i = first; i < first_right; ++i) {
    if (!items_[i]->isEmpty()) left += place(i, left) + gap_;
  }
  int right = rect.right() + 1;
  for (int i = end - 1; i >= first_right; --i) {
    if (items_[i]->isEmpty()) continue;
    right -= std::min(items_[i]->sizeHint().width(), rect.width());
    place(i, right);
    right -= gap_;
  }
}

}  // namespace kladez
