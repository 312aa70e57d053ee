#include "shell/MainWindowParts.h"

#include <QProgressBar>
#include <algorithm>

#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

QSize HostLayout::minimumSize() const {
  QSize least = QVBoxLayout::minimumSize();
  const QLayoutItem* child = itemAt(0);
  const QLayout* layout = child != nullptr ? child->widget()->layout() : nullptr;
  if (layout != nullptr && layout->hasHeightForWidth()) {
    const QWidget* view = parentWidget()->parentWidget();
    const int width = std::max(least.width(), view->width());
    least.setHeight(std::max(least.height(), layout->minimumHeightForWidth(width)));
  }
  return least;
}

QProgressBar* NewProgressBar(QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  bar->setObjectName(u"ProgressBar1"_s);
  bar->setAccessibleName(u"Ход работы"_s);
  bar->setRange(0, 100);
  bar->setTextVisible(false);
  bar->setFixedSize(15 * look::kGrid, 2 * look::kGrid);
  QSizePolicy policy = bar->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  bar->setSizePolicy(policy);
  bar->hide();
  return bar;
}

}  // namespace kladez
