#include "ui/controls/Columns.h"

#include <QWidget>
#include <algorithm>

namespace kladez {

Columns::Columns(int gap) : gap_(gap) { setContentsMargins(0, 0, 0, 0); }

// A layout takes itself out of the one around it when it goes.
Columns::~Columns() {
  while (!items_.empty()) delete takeAt(count() - 1);
}

void Columns::Add(QWidget* widget, int weight) {
  addWidget(widget);
  items_.back().weight = weight;
}

void Columns::Add(QLayout* layout, int weight) {
  addChildLayout(layout);
  items_.push_back({layout, weight});
}

QLayoutItem* Columns::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<size_t>(index)].item : nullptr;
}

QLayoutItem* Columns::takeAt(int index) {
  QLayoutItem* item = itemAt(index);
  if (item != nullptr) items_.erase(items_.begin() + index);
  return item;
}

int Columns::MinimumWidth(size_t first, size_t end) const {
  int width = gap_ * static_cast<int>(end - first - 1);
  for (size_t i = first; i < end; ++i) width += items_[i].item->minimumSize().width();
  return width;
}

size_t Columns::ColumnsIn(int width) const {
  const auto fits = [&](size_t columns) {
    for (size_t first = 0; first < items_.size(); first += columns) {
      if (MinimumWidth(first, std::min(first + columns, items_.size())) > width) return false;
    }
    return true;
  };
  size_t columns = std::max<size_t>(items_.size(), 1);
  while (columns > 1 && !fits(columns)) --columns;
  return columns;
}

// By weight, but none less than it needs.
std::vector<int> Columns::Widths(size_t first, size_t end, int width) const {
  std::vector<int> widths(end - first, -1);
  int room = width - gap_ * static_cast<int>(end - first - 1);
  for (bool settled = false; !settled;) {
    settled = true;
    int weights = 0;
    for (size_t i = first; i < end; ++i) weights += widths[i - first] < 0 ? items_[i].weight : 0;
    for (size_t i = first; i < end; ++i) {
      const int least = items_[i].item->minimumSize().width();
      if (widths[i - first] >= 0) continue;
      if (weights == 0 || room * items_[i].weight < least * weights) {
        widths[i - first] = least;
        room -= least;
        settled = false;
        break;
      }
    }
  }
  int weights = 0;
  for (size_t i = first; i < end; ++i) weights += widths[i - first] < 0 ? items_[i].weight : 0;
  for (size_t i = first; i < end; ++i) {
    if (widths[i - first] >= 0) continue;
    widths[i - first] = room * items_[i].weight / weights;
    room -= widths[i - first];
    weights -= items_[i].weight;
  }
  return widths;
}

// The least height: who stacks items that need a certain height for their width takes it for what
// they can do with.
int Columns::LineHeight(size_t first, const std::vector<int>& widths) const {
  int highest = 0;
  for (size_t i = 0; i < widths.size(); ++i) {
    const QLayoutItem* item = items_[first + i].item;
    const bool by_width = item->hasHeightForWidth();
    highest = std::max(highest,
                       by_width ? item->heightForWidth(widths[i]) : item->minimumSize().height());
  }
  return highest;
}

int Columns::heightForWidth(int width) const {
  const QMargins margins = contentsMargins();
  const int room = width - margins.left() - margins.right();
  const size_t columns = ColumnsIn(room);
  int height = margins.top() + margins.bottom();
  for (size_t first = 0; first < items_.size(); first += columns) {
    const size_t end = std::min(first + columns, items_.size());
    height += (first > 0 ? gap_ : 0) + LineHeight(first, Widths(first, end, room));
  }
  return height;
}

QSize Columns::minimumSize() const {
  QSize size(0, 0);
  for (const Item& item : items_) size = size.expandedTo(item.item->minimumSize());
  return size.grownBy(contentsMargins());
}

QSize Columns::sizeHint() const {
  QSize size(-gap_, 0);
  for (const Item& item : items_) {
    size.rwidth() += item.item->sizeHint().width() + gap_;
    size.setHeight(std::max(size.height(), item.item->sizeHint().height()));
  }
  return size.expandedTo(QSize(0, 0)).grownBy(contentsMargins());
}

void Columns::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const QRect room = contentsRect();
  const size_t columns = ColumnsIn(room.width());
  int top = room.top();
  for (size_t first = 0; first < items_.size(); first += columns) {
    const size_t end = std::min(first + columns, items_.size());
    const std::vector<int> widths = Widths(first, end, room.width());
    // What is left of the height is the last line's.
    const int line = end == items_.size() ? room.bottom() + 1 - top : LineHeight(first, widths);
    int left = room.left();
    for (size_t i = 0; i < widths.size(); ++i) {
      items_[first + i].item->setGeometry(QRect(left, top, widths[i], line));
      left += widths[i] + gap_;
    }
    top += line + gap_;
  }
}

}  // namespace kladez
