// "Подсказка": the window that a question mark opens. It goes away as soon as anything else is
// clicked, so it never stands in the way.
#pragma once

#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace kladez {

struct Hint;

class HintWindow : public QDialog {
  Q_OBJECT

 public:
  // Shows a hint over the window that asked; one shown before goes away.
  static void Show(QWidget* parent, const Hint& hint);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  HintWindow(const Hint& hint, QWidget* parent);

  QLabel* heading_;
  QPlainTextEdit* body_;
  QPushButton* close_;  // "Закрыть"
  QAction* escape_;     // closes it by key
};

}  // namespace kladez
