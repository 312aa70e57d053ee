// The controls that print screens are made of, and how they stand in aligned columns.
#pragma once

#include <QString>
#include <initializer_list>

#include "books/printing/DocumentTotals.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QWidget;

namespace kladez {

class TextLine;

TextLine* NewText(QWidget* parent, const QString& name, const QString& text = {});
// A text of figures: right-aligned, a few characters wide.
TextLine* NewFigure(QWidget* parent, const QString& name, const QString& text = {});
QCheckBox* NewTick(QWidget* parent, const QString& name, const QString& caption, bool on);
// A list to pick from in which any text may be typed, and stays as it was typed: nothing completes
// it. Its line is a TextLine.
QComboBox* NewTextCombo(QWidget* parent, const QString& name);
TextLine* LineOf(const QComboBox* combo);
// The same with new entries; the text stays.
void SetEntries(QComboBox* combo, const QStringList& entries);
// A caption; Alt and its letter lead to the field.
QLabel* NewCaption(QWidget* parent, const QString& caption, QWidget* field);

// A field with a box before it that says whether it is printed; without one it always is.
struct TickedField {
  QCheckBox* tick = nullptr;
  TextLine* text = nullptr;

  TickedText Read() const;
};

// Several controls side by side in one cell of a grid; the fields among them share the room.
QHBoxLayout* SideBySide(std::initializer_list<QWidget*> widgets);

// A titled frame around a block.
QGroupBox* NewBoxOf(QWidget* parent, const QString& title, QLayout* content);

// A grid that is filled row by row with groups of caption or tick box, field, question mark;
// `groups` of them stand side by side.
class FieldGrid {
 public:
  explicit FieldGrid(QGridLayout* grid, int groups = 1);

  // Grids above each other have their fields in line when their captions have one width.
  static int CaptionWidth();

  void Add(QWidget* caption, QWidget* field, QWidget* hint = nullptr);
  void Add(QWidget* caption, QLayout* fields, QWidget* hint = nullptr);

 private:
  QGridLayout* grid_;
  int groups_;
  int next_ = 0;
};

}  // namespace kladez
