// "Главная" while no Database is open: what to do first.
#pragma once

#include <QWidget>

class QLabel;

namespace kladez {

class Link;

class LandingScreen : public QWidget {
  Q_OBJECT

 public:
  explicit LandingScreen(QWidget* parent);

 signals:
  void OpenWanted();
  void CreateWanted();

 private:
  QWidget* Picture1;  // the ground behind everything
  QLabel* Label1;     // "Добро пожаловать в Kladez 4.8"
  QLabel* Label2;     // the instruction
  Link* Label3;       // "Открыть существующую базу данных"
  Link* Label4;       // "Создать новую базу данных"
};

}  // namespace kladez
