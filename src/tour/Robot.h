// Plays a script against the real windows with key and mouse events, as a person would: the guided
// tour and the end-to-end test are such scripts. The script runs beside the event loop, so that it
// reads in one line from top to bottom although dialogs wait inside each other.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace kladez {

class Robot {
 public:
  // Pictures go to the folder, numbered in order; without a folder none are taken.
  explicit Robot(const QString& picture_folder = {});

  // Runs the script and returns when it has ended; the event loop runs meanwhile. Throws
  // std::runtime_error, with the step at fault, for a window, control or text that did not come.
  void Run(const std::function<void(Robot&)>& script);

  // What follows is for the script. Controls are named by their objectName on the window in front.

  // Waits until the screen is in front: a dialog, a message, or the child screen of the main
  // window.
  void WaitFor(const QString& screen);
  void WaitUntilGone(const QString& screen);
  void WaitForMessage();
  // Waits until all that the last step set off has been done.
  void Settle();

  void Click(const QString& control);
  // Clicks the question mark beside a control or in a frame, by what its hint is headed.
  void ClickHint(const QString& heading);
  void SelectRow(const QString& list, const QString& first_column);
  void Type(const QString& control, const QString& text);  // replaces what stands there
  void TypeHere(const QString& text);                      // into the control with the focus
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  // A letter as it stands on the keyboard, with Alt for the mark of a caption or menu.
  void PressLetter(QChar letter, Qt::KeyboardModifiers modifiers = Qt::AltModifier);
  // Presses Tab until the control has the focus.
  void TabTo(const QString& control);
  void Choose(const QString& combo, const QString& entry);
  void FocusOn(const QString& control);
  void OpenTab(const QString& tabs, const QString& title);
  void OpenMenu(const QString& action);  // a menu command, by the objectName of its action
  void Check(const QString& control, bool on);

  QString TextOf(const QString& control);

  // Saves a picture of the window in front under the name.
  void Picture(const QString& name);
  // Saves a picture of the next window of that name that comes up, for those that close themselves.
  void PictureWhenShown(const QString& screen);
  // Called with each window and screen name of which a picture is taken, also where none is kept.
  using Inspector = std::function<void(QWidget* window, const QString& screen)>;
  void SetInspector(Inspector inspector) { inspector_ = std::move(inspector); }
  const QStringList& Pictures() const { return pictures_; }

  // Runs the action in the windows' thread; it may open a dialog and come back later.
  void InWindow(const std::function<void()>& action);

 private:
  template <typename Value>
  Value Ask(const std::function<Value()>& question);
  void WaitUntil(const QString& what, const std::function<bool()>& holds);

  void TakePicture(QWidget* window, const QString& name);

  QString picture_folder_;
  Inspector inspector_;
  QStringList pictures_;
};

}  // namespace kladez
