// The files that a window shows, which others write too: another window, a second copy of the
// program, a person with an editor. When the window gets the keyboard back it shows them as they
// are now; unsaved work stays instead, and the window says so at its foot. A save that would write
// over something newer writes nothing and offers to read again.
#pragma once

#include <QObject>
#include <functional>

class QLabel;
class QWidget;

namespace kladez {

class FollowedFiles : public QObject {
  Q_OBJECT

 public:
  struct Ways {
    // Whether the files are still what was read. Asked whenever the window becomes active.
    std::function<bool()> is_current;
    // Whether reading again would lose somebody's work; empty: it never does.
    std::function<bool()> is_changed;
    // Reads and shows again, the row selected before selected still. May throw.
    std::function<void()> read_again;
  };
  // Belongs to the window, dialog or child screen, whose layout is there already: the word at the
  // foot comes to its end.
  FollowedFiles(QWidget* window, Ways ways);

  // Saves inside the guard, true when it went through. Where a file is newer than what was read the
  // refusal is told, and the files are read again where somebody wants that.
  bool Save(const std::function<void()>& save);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LookSoon();
  void Look();
  void TellAtFoot(const QString& text);
  void ReadAgain();
  bool IsInCommand() const;

  QWidget* const window_;
  const Ways ways_;
  QLabel* const note_;
  int loop_level_ = 0;  // of the window: deeper ones are those of its commands
  bool look_waits_ = false;
};

}  // namespace kladez
