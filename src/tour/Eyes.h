// What a person at the screen sees and can reach: the window in front, its screens, controls and
// rows. To be asked in the windows' thread; whatever is not there throws std::runtime_error.
#pragma once

#include <QModelIndex>
#include <QString>

class QAbstractItemView;
class QWidget;

namespace kladez::eyes {

[[noreturn]] void Fail(const QString& what);

// The window that a person would type into now; null when there is none.
QWidget* Front();
// A dialog in front, or the child screen of the main window; null when it is not there. A command
// may bear the name of a screen.
QWidget* FindScreen(const QString& name);
// A control of the window in front, or that window itself; null when it is not to be seen.
QWidget* FindVisible(const QString& name);
// The same; one must be there.
QWidget* Control(const QString& name);

template <typename Kind>
Kind* ControlOf(const QString& name) {
  auto* control = qobject_cast<Kind*>(Control(name));
  if (control == nullptr) Fail(QStringLiteral("Элемент %1 другого вида").arg(name));
  return control;
}

// Where the keyboard goes: the control with the focus, else the window in front.
QWidget* KeyboardTarget();
// The row of a list by the text of its first column.
QModelIndex RowOf(QAbstractItemView* list, const QString& first_column);
QString ShownText(QWidget* control);

}  // namespace kladez::eyes
