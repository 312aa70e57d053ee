#include "ui/controls/TabOrder.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <vector>

namespace kladez {
namespace {

using Widgets = std::vector<QWidget*>;

void Collect(QWidget* widget, Widgets& order);

// The items of a grid were added in any order; those of the other layouts stand as they come.
std::vector<QLayoutItem*> ItemsByEye(QLayout* layout) {
  std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> placed;
  const auto* grid = qobject_cast<QGridLayout*>(layout);
  for (int i = 0; i < layout->count(); ++i) {
    std::pair<int, int> place;
    int rows = 0;
    int columns = 0;
    if (grid != nullptr) grid->getItemPosition(i, &place.first, &place.second, &rows, &columns);
    placed.emplace_back(place, layout->itemAt(i));
  }
  std::stable_sort(placed.begin(), placed.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<QLayoutItem*> items;
  for (const auto& [place, item] : placed) items.push_back(item);
  return items;
}

void Collect(QLayout* layout, Widgets& order) {
  for (QLayoutItem* item : ItemsByEye(layout)) {
    if (item->widget() != nullptr) {
      Collect(item->widget(), order);
    } else if (item->layout() != nullptr) {
      Collect(item->layout(), order);
    }
  }
}

void Collect(QWidget* widget, Widgets& order) {
  if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
    order.push_back(tabs->tabBar());
    for (int i = 0; i < tabs->count(); ++i) Collect(tabs->widget(i), order);
  } else if (auto* area = qobject_cast<QScrollArea*>(widget)) {
    if (area->widget() != nullptr) Collect(area->widget(), order);
  } else if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr) {
    order.push_back(widget);
  } else if (widget->layout() != nullptr) {
    Collect(widget->layout(), order);
  }
}

}  // namespace

void TabByEye(QWidget* screen) {
  if (screen->layout() == nullptr) return;
  Widgets order;
  Collect(screen->layout(), order);
  for (size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace kladez
