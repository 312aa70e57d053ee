// Work on a window that is in no file yet. Whatever way the window is about to go, one question
// stands before it: "Сохранить изменения?". A window that owns one of these is asked for at Escape
// and at its frame; whoever closes windows himself asks with MayLeave first.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace kladez {

class UnsavedWork : public QObject {
  Q_OBJECT

 public:
  struct Ways {
    // What would be lost now. Asked at every way out, so it compares contents: what was changed
    // and changed back is no work.
    std::function<bool()> is_changed;
    // Saves as the window's own command does. False when it could not: that was told by then, and
    // the window stays. A form that hands its record over may close itself here.
    std::function<bool()> save;
  };
  // Belongs to the window, screen or dialog.
  UnsavedWork(QWidget* window, Ways ways);
  ~UnsavedWork() override;

  // Asks where something has changed. True when the work may go: nothing has changed, it is saved,
  // or somebody chose to lose it.
  bool MayGo();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend bool MayLeave(const QWidget* root);
  void ForgetAnswer();

  QWidget* const window_;
  const Ways ways_;
  bool given_up_ = false;  // "Нет": the window goes next, and is not asked again on its way
};

// Asks for every window at `root` or standing on it, the one that came last first; all windows of
// the program without a root. False when one of them has to stay: then nothing may be closed.
bool MayLeave(const QWidget* root = nullptr);

}  // namespace kladez
