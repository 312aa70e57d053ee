#include "tour/Eyes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <stdexcept>

namespace kladez::eyes {

using namespace Qt::StringLiterals;

void Fail(const QString& what) { throw std::runtime_error(what.toStdString()); }

QWidget* Front() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active->isVisible()) return active;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible()) return widget;
  }
  return nullptr;
}

QWidget* FindVisible(const QString& name) {
  QWidget* front = Front();
  if (front == nullptr) return nullptr;
  if (front->objectName() == name) return front;
  for (QWidget* widget : front->findChildren<QWidget*>(name)) {
    if (widget->isVisible()) return widget;
  }
  return nullptr;
}

QWidget* FindScreen(const QString& name) {
  QWidget* front = Front();
  if (front == nullptr || front->objectName() == name) return front;
  return qobject_cast<QMainWindow*>(front) != nullptr ? FindVisible(name) : nullptr;
}

QWidget* Control(const QString& name) {
  QWidget* control = FindVisible(name);
  if (control == nullptr) {
    QWidget* front = Front();
    Fail(u"Нет элемента "_s + name + u" в окне "_s +
         (front != nullptr ? front->objectName() : u"-"_s));
  }
  return control;
}

// On a platform without a window manager the application as a whole may know of no focus.
QWidget* KeyboardTarget() {
  QWidget* front = Front();
  if (front == nullptr) return nullptr;
  // Where a dialog closed, a window manager would make the window below it active.
  const QWidget* active = QApplication::activeWindow();
  if (active == nullptr || !active->isVisible()) QApplication::setActiveWindow(front->window());
  return front->focusWidget() != nullptr ? front->focusWidget() : front;
}

QModelIndex RowOf(QAbstractItemView* list, const QString& first_column) {
  for (int row = 0; row < list->model()->rowCount(); ++row) {
    const QModelIndex index = list->model()->index(row, 0);
    if (index.data().toString() == first_column) return index;
  }
  Fail(u"Нет строки "_s + first_column);
}

QString ShownText(QWidget* control) {
  if (const auto* label = qobject_cast<QLabel*>(control)) return label->text();
  if (const auto* line = qobject_cast<QLineEdit*>(control)) return line->text();
  if (const auto* combo = qobject_cast<QComboBox*>(control)) return combo->currentText();
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) return button->text();
  return control->windowTitle();
}

}  // namespace kladez::eyes
