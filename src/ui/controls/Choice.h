// A selector in a row of a panel: its label, whose letter leads to it, the field, and the question
// mark that tells what it is for.
#pragma once

#include <QComboBox>

#include "ui/controls/HintPicture.h"

class QHBoxLayout;

namespace kladez {

// The field asks for room for so many letters, however long the names in its list are.
void BoundByLetters(QComboBox* field, int letters);

// A list to pick from in which any text may be typed: what is typed stays as it is typed. Its line
// is a TextLine.
QComboBox* NewFreeChoice(QWidget* parent, const QString& name);

// `caption` carries the mark of its letter ("С&клад:"). The field takes the room that is left.
void AddChoice(QHBoxLayout* row, const QString& caption, QComboBox* field, const Hint& hint);

}  // namespace kladez
