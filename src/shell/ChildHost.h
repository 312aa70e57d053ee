// Where the child screens of the main window live, one at a time. With large letters on a small
// display a screen scrolls here instead of being cut.
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QTimer>

class QVBoxLayout;

namespace kladez {

class ChildHost : public QScrollArea {
  Q_OBJECT

 public:
  explicit ChildHost(QWidget* parent);
  ~ChildHost() override;

  // What a child screen has for its parent.
  QWidget* Ground() const { return ground_; }
  QWidget* Child() const { return child_; }
  // The screens before it are closed by now: one made already would be closed with them.
  void Show(QWidget* child);
  // Closes every child screen of the window, in the told order.
  void CloseAll();

 signals:
  // The screen closed itself, is gone for good, and no other has come.
  void LeftEmpty();

 private:
  QWidget* ground_;
  QVBoxLayout* layout_;
  QPointer<QWidget> child_;
  QTimer way_home_;  // from a screen that closed itself
};

}  // namespace kladez
