#include "screens/printing/PrintFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "ui/controls/Choice.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Look.h"

namespace kladez {

TextLine* NewText(QWidget* parent, const QString& name, const QString& text) {
  auto* field = new TextLine(parent);
  field->setObjectName(name);
  field->setText(text);
  return field;
}

TextLine* NewFigure(QWidget* parent, const QString& name, const QString& text) {
  TextLine* field = NewText(parent, name, text);
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->setMinimumWidth(look::ByLetters(field, 8));
  return field;
}

QCheckBox* NewTick(QWidget* parent, const QString& name, const QString& caption, bool on) {
  auto* tick = new QCheckBox(caption, parent);
  tick->setObjectName(name);
  tick->setChecked(on);
  return tick;
}

QComboBox* NewTextCombo(QWidget* parent, const QString& name) {
  QComboBox* combo = NewFreeChoice(parent, name);
  BoundByLetters(combo, 16);
  return combo;
}

TextLine* LineOf(const QComboBox* combo) { return static_cast<TextLine*>(combo->lineEdit()); }

void SetEntries(QComboBox* combo, const QStringList& entries) {
  const QString text = combo->currentText();
  combo->clear();
  combo->addItems(entries);
  combo->setEditText(text);
}

QLabel* NewCaption(QWidget* parent, const QString& caption, QWidget* field) {
  auto* label = new QLabel(caption, parent);
  label->setBuddy(field);
  return label;
}

TickedText TickedField::Read() const {
  return {text->text(), tick == nullptr || tick->isChecked()};
}

QHBoxLayout* SideBySide(std::initializer_list<QWidget*> widgets) {
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kTight);
  for (QWidget* widget : widgets) {
    const bool field = qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget);
    row->addWidget(widget, field ? 1 : 0);
  }
  return row;
}

QGroupBox* NewBoxOf(QWidget* parent, const QString& title, QLayout* content) {
  auto* box = new QGroupBox(title, parent);
  content->setContentsMargins(look::kGrid, look::kGrid, look::kGrid, look::kGrid);
  box->setLayout(content);
  return box;
}

namespace {

constexpr int kColumnsOfGroup = 3;

}  // namespace

FieldGrid::FieldGrid(QGridLayout* grid, int groups) : grid_(grid), groups_(groups) {
  grid_->setHorizontalSpacing(look::kGrid);
  grid_->setVerticalSpacing(look::kTight);
  for (int group = 0; group < groups; ++group) {
    grid_->setColumnStretch(group * kColumnsOfGroup + 1, 1);
  }
}

int FieldGrid::CaptionWidth() { return 17 * look::kGrid; }

void FieldGrid::Add(QWidget* caption, QWidget* field, QWidget* hint) {
  auto* cell = new QHBoxLayout;
  cell->addWidget(field);
  // A tick is no label; it names the field all the same.
  if (const auto* tick = qobject_cast<QCheckBox*>(caption)) {
    field->setAccessibleName(tick->text().remove(u'&'));
  }
  Add(caption, cell, hint);
}

void FieldGrid::Add(QWidget* caption, QLayout* fields, QWidget* hint) {
  const int row = next_ / groups_;
  const int column = next_ % groups_ * kColumnsOfGroup;
  // A box reaches no further than its words, so that a click anywhere on it hits.
  const bool box = qobject_cast<QCheckBox*>(caption) != nullptr;
  grid_->addWidget(caption, row, column, box ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment());
  grid_->addLayout(fields, row, column + 1);
  if (hint != nullptr) grid_->addWidget(hint, row, column + 2);
  ++next_;
}

}  // namespace kladez
