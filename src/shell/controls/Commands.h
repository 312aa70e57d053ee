// The buttons of all screens: a command has the told control name and caption, its letter to press
// with Alt, an icon where one helps, and a place in the row of commands.
#pragma once

#include <QPushButton>

#include "shell/controls/Look.h"

class QBoxLayout;

namespace kladez {

// `caption` carries the mark of its letter ("&Добавить"); `name` is the control's name.
QPushButton* NewCommand(QWidget* parent, const QString& name, const QString& caption);
QPushButton* NewCommand(QWidget* parent, const QString& name, const QString& caption,
                        look::IconName icon);

// The hidden twin of a command that screens have for their keys: pressing it presses the command.
void AddTwin(QWidget* parent, const QString& name, QPushButton* of);

// The two that end a dialog, at the lower right: `yes` is the default command and `no` the one of
// the Escape key, where there is one.
QBoxLayout* NewEndingRow(QPushButton* yes, QPushButton* no);

}  // namespace kladez
