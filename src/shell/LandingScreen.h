// "Главная" while no Database is open: what to do first.
#pragma once

#include <QWidget>

namespace kladez {

class LandingScreen : public QWidget {
  Q_OBJECT

 public:
  explicit LandingScreen(QWidget* parent);

 signals:
  void OpenWanted();
  void CreateWanted();
};

}  // namespace kladez
