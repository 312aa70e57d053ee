// The title window of the start.
#pragma once

#include <QWidget>

namespace kladez {

class SplashScreen : public QWidget {
  Q_OBJECT

 public:
  SplashScreen();

  // Shows it for a while, letting events go on.
  void Run(int milliseconds);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kladez
