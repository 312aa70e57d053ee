// The small question mark beside a field or frame; a click tells in a few words what it is for.
#pragma once

#include <QToolButton>
#include <functional>

namespace kladez {

struct Hint {
  QString heading;
  QString body;
};

class HintPicture : public QToolButton {
  Q_OBJECT

 public:
  HintPicture(const Hint& hint, QWidget* parent);

  const Hint& Content() const { return hint_; }

  // Shows a hint; the shell gives the window that does.
  using Opener = std::function<void(QWidget* parent, const Hint& hint)>;
  static void SetOpener(Opener opener);

 private:
  Hint hint_;
};

}  // namespace kladez
