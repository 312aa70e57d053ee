// The fixed parts around the child screen of the main window.
#pragma once

#include <QVBoxLayout>

class QProgressBar;

namespace kladez {

// Where the child screen lives. One that could use more height than there is gets what there is:
// only one that can't do with it scrolls. What it can do with depends on the width, where its rows
// go on in a next line.
class HostLayout : public QVBoxLayout {
 public:
  using QVBoxLayout::QVBoxLayout;
  bool hasHeightForWidth() const override { return false; }
  QSize minimumSize() const override;
};

// The bar at the foot. It keeps its room while it is away, so that nothing moves when it comes.
QProgressBar* NewProgressBar(QWidget* parent);

}  // namespace kladez
