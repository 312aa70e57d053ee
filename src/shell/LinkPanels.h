// The links around the child screen of the main window: the left panel and the strip at the top.
#pragma once

#include <QWidget>

#include "shell/Places.h"

namespace kladez {

// Picture1: the links `go0` to `go17` under the headings of their groups, on a dark ground.
class LinksPanel : public QWidget {
  Q_OBJECT

 public:
  explicit LinksPanel(QWidget* parent);

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
