// The buttons of all screens: a command has the told control name and caption, its letter to press
// with Alt, an icon where one helps, and a place in the row of commands.
#pragma once

#include <QPushButton>

#include "ui/controls/Look.h"

class QBoxLayout;
class QLayout;

namespace kladez {

// `caption` carries the mark of its letter ("&Добавить"); `name` is the control's name.
QPushButton* NewCommand(QWidget* parent, const QString& name, const QString& caption);
QPushButton* NewCommand(QWidget* parent, const QString& name, const QString& caption,
                        look::IconName icon);

// The hidden twin of a command that screens have for their keys: pressing it presses the command.
void AddTwin(QWidget* parent, const QString& name, QPushButton* of);

// The commands of a child screen in one row, or in more where they need it: `left` at the left end,
// `right` at the right one.
QLayout* NewCommandRow(std::initializer_list<QPushButton*> left,
                       std::initializer_list<QPushButton*> right);

// The two that end a dialog, at the lower right: `yes` is the default command and `no` the one of
// the Escape key, where there is one.
QBoxLayout* NewEndingRow(QPushButton* yes, QPushButton* no);

}  // namespace kladez
