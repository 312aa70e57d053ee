#include "ui/controls/Choice.h"

#include <QHBoxLayout>
#include <QLabel>

#include "ui/controls/Fields.h"
#include "ui/controls/Look.h"

namespace kladez {

void BoundByLetters(QComboBox* field, int letters) {
  field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  field->setMinimumContentsLength(letters);
}

QComboBox* NewFreeChoice(QWidget* parent, const QString& name) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setEditable(true);
  combo->setLineEdit(new TextLine(combo));
  combo->setInsertPolicy(QComboBox::NoInsert);
  // The toolkit's would put an entry in the place of what is typed.
  combo->setCompleter(nullptr);
  return combo;
}

void AddChoice(QHBoxLayout* row, const QString& caption, QComboBox* field, const Hint& hint) {
  auto* label = new QLabel(caption, field->parentWidget());
  label->setBuddy(field);
  row->setSpacing(look::kTight);
  BoundByLetters(field, 14);
  row->addWidget(label);
  row->addWidget(field, 1);
  row->addWidget(new HintPicture(hint, {field}, field->parentWidget()));
}

}  // namespace kladez
