// The strip under a page in which a person types what to look for.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

namespace kladez::viewer {

class PageView;

class FindBar : public QWidget {
  Q_OBJECT

 public:
  // Hidden until it is opened; finds in `view`.
  FindBar(PageView* view, QWidget* parent);

  // Shows the strip, with what is selected on the page to begin with.
  void Open();
  void FindNext();
  void FindPrevious();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(bool backward);
  void Close();

  PageView* view_;
  QLineEdit* text_;        // "Найти:"
  QPushButton* previous_;  // "Назад"
  QPushButton* next_;      // "Далее"
  QLabel* result_;
};

}  // namespace kladez::viewer
