#include "ui/controls/Choice.h"

#include <QHBoxLayout>
#include <QLabel>

#include "ui/controls/Look.h"

namespace kladez {

void BoundByLetters(QComboBox* field, int letters) {
  field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  field->setMinimumContentsLength(letters);
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
