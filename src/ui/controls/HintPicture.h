// The small question mark beside a field or frame; a click on it, or Shift+F1 in what it stands
// beside, tells in a few words what that is for. Assistive tools read the same words as the
// description of the field.
#pragma once

#include <QToolButton>
#include <functional>
#include <initializer_list>

namespace kladez {

struct Hint {
  QString heading;
  QString body;
};

class HintPicture : public QToolButton {
  Q_OBJECT

 public:
  // `about`: the fields or frames that the hint is for. Of frames within each other the innermost
  // answers the key. A picture beside nothing that takes the keyboard takes it itself.
  HintPicture(const Hint& hint, std::initializer_list<QWidget*> about, QWidget* parent);

  const Hint& Content() const { return hint_; }

  // Shows a hint; the shell gives the window that does.
  using Opener = std::function<void(QWidget* parent, const Hint& hint)>;
  static void SetOpener(Opener opener);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;  // of what it is about

 private:
  Hint hint_;
};

}  // namespace kladez
