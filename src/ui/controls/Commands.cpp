#include "ui/controls/Commands.h"

#include <QHBoxLayout>

#include "ui/controls/WrapRow.h"

namespace kladez {

QPushButton* NewCommand(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  // Enter in a field belongs to the default command, wherever the focus was last.
  button->setAutoDefault(false);
  return button;
}

QPushButton* NewCommand(QWidget* parent, const QString& name, const QString& caption,
                        look::IconName icon) {
  QPushButton* button = NewCommand(parent, name, caption);
  button->setIcon(look::Icon(icon));
  button->setIconSize(look::IconSize(button));
  return button;
}

void AddTwin(QWidget* parent, const QString& name, QPushButton* of) {
  QPushButton* twin = NewCommand(parent, name, {});
  twin->hide();
  QObject::connect(twin, &QPushButton::clicked, of, &QPushButton::click);
}

QLayout* NewCommandRow(std::initializer_list<QPushButton*> left,
                       std::initializer_list<QPushButton*> right) {
  auto* row = new WrapRow(look::kGrid, look::kTight);
  for (QPushButton* command : left) row->addWidget(command);
  row->AddStretch();
  for (QPushButton* command : right) row->addWidget(command);
  return row;
}

QBoxLayout* NewEndingRow(QPushButton* yes, QPushButton* no) {
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGrid);
  row->addStretch();
  for (QPushButton* button : {yes, no}) {
    if (button == nullptr) continue;
    button->setMinimumWidth(look::ByLetters(button, 12));
    row->addWidget(button);
  }
  yes->setDefault(true);
  return row;
}

}  // namespace kladez
