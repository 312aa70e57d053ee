// The links around the child screen of the main window: the left panel and the strip at the top.
#pragma once

#include <QScrollArea>

#include "shell/Places.h"

namespace kladez {

// Picture1: the links `go0` to `go17` under the headings of their groups, on a dark ground. Scrolls
// where the window is too low for all of them.
class LinksPanel : public QScrollArea {
  Q_OBJECT

 public:
  explicit LinksPanel(QWidget* parent);

  // As wide as its links.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 signals:
  void Chosen(Place place);
};

// Picture2: the short links.
class LinksStrip : public QWidget {
  Q_OBJECT

 public:
  explicit LinksStrip(QWidget* parent);

 signals:
  void Chosen(Place place);
};

}  // namespace kladez
