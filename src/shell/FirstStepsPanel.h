// What to do first in a new Database, in the room of the chart: five steps in their order, each a
// link that is ticked off once it is done, and the way to the demonstration books.
#pragma once

#include <QWidget>
#include <array>

#include "books/reports/FirstSteps.h"
#include "shell/Places.h"

class QLabel;

namespace kladez {

class FirstStepsPanel : public QWidget {
  Q_OBJECT

 public:
  // `heading` becomes its own.
  FirstStepsPanel(QLabel* heading, QWidget* parent);

  void Show(const FirstSteps& steps, bool has_demonstration);

 signals:
  void Chosen(Place place);
  void DemonstrationWanted();

 private:
  std::array<QLabel*, kFirstSteps> marks_{};
  QWidget* demonstration_;
};

}  // namespace kladez
