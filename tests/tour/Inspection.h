// Looks over a window as a person would who sees badly or not at all: texts that are cut, controls
// that lie over each other or stick out, two that want the same letter with Alt, controls that a
// screen reader could not name.
#pragma once

#include <QStringList>
#include <QWidget>

namespace kladez {

// One line for each fault: the control, what is wrong. Empty for a sound window.
QStringList FaultsOf(QWidget* window);

// The interactive controls without a name for assistive tools.
QStringList UnnamedControls(QWidget* window);

}  // namespace kladez
