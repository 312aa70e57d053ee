#include "ui/controls/Forms.h"

#include <QHBoxLayout>
#include <QLineEdit>

#include "ui/controls/Choice.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

QLabel* NewLabel(const QString& text, QWidget* field, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  label->setBuddy(field);
  return label;
}

QBoxLayout* WithHint(QWidget* field, const Hint& hint) {
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(field);
  row->addWidget(new HintPicture(hint, {field}, field->parentWidget()));
  return row;
}

void MakeReadOnly(QLineEdit* field) {
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::ClickFocus);
  QPalette colors = field->palette();
  colors.setColor(QPalette::Base, colors.color(QPalette::Window));
  field->setPalette(colors);
}

TextChoice::TextChoice(const QStringList& texts, QWidget* parent) : QComboBox(parent) {
  // Long names scroll in the open list and do not make the form wider.
  BoundByLetters(this, 12);
  for (const QString& text : texts) addItem(text.left(look::kLongestText), text);
}

void TextChoice::Choose(const QString& text) {
  if (findData(text) < 0) addItem(text.left(look::kLongestText), text);
  setCurrentIndex(findData(text));
}

}  // namespace kladez
