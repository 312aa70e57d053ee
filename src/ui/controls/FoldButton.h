// The button that folds a panel open and shut. Its caption begins with "+" while the panel is shut
// and with "-" while it is open, and ends, after a run of blanks, in what the panel holds.
#pragma once

#include <QPushButton>

namespace kladez {

class FoldButton : public QPushButton {
  Q_OBJECT

 public:
  // `what` may carry the mark of its letter ("П&араметры"). The panel, which is not owned, is shut
  // or opened at once.
  FoldButton(const QString& name, const QString& what, QWidget* panel, bool open,
             QWidget* parent = nullptr);

  bool IsOpen() const { return open_; }
  void SetOpen(bool open);

 private:
  QString what_;
  QWidget* panel_;
  bool open_ = false;
};

}  // namespace kladez
