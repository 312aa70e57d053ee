#include "ui/controls/ChoiceAccess.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

namespace kladez {
namespace {

QAccessibleInterface* AccessFor(const QString&, QObject* object) {
  auto* choice = qobject_cast<QComboBox*>(object);
  return choice != nullptr ? new ChoiceAccess(choice) : nullptr;
}

}  // namespace

ChoiceAccess::ChoiceAccess(QComboBox* choice) : QAccessibleWidget(choice, QAccessible::ComboBox) {}

void ChoiceAccess::Install() {
  static const bool installed = [] {
    QAccessible::installFactory(&AccessFor);
    return true;
  }();
  Q_UNUSED(installed);
}

QComboBox& ChoiceAccess::Choice() const { return *static_cast<QComboBox*>(object()); }

QString ChoiceAccess::text(QAccessible::Text type) const {
  return type == QAccessible::Value ? Choice().currentText() : QAccessibleWidget::text(type);
}

void ChoiceAccess::setText(QAccessible::Text type, const QString& text) {
  if (type != QAccessible::Value) return;
  const int entry = Choice().findText(text);
  if (entry >= 0) {
    Choice().setCurrentIndex(entry);
  } else if (Choice().isEditable()) {
    Choice().setEditText(text);
  }
}

QAccessible::State ChoiceAccess::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  const bool open = Choice().view()->isVisible();
  state.expandable = true;
  state.expanded = open;
  state.collapsed = !open;
  state.hasPopup = true;
  state.editable = Choice().isEditable();
  return state;
}

int ChoiceAccess::childCount() const { return Choice().isEditable() ? 2 : 1; }

QAccessibleInterface* ChoiceAccess::child(int index) const {
  QWidget* part = index == 0 ? static_cast<QWidget*>(Choice().view()) : Choice().lineEdit();
  return QAccessible::queryAccessibleInterface(part);
}

QAccessibleInterface* ChoiceAccess::childAt(int x, int y) const {
  return Choice().isEditable() && rect().contains(x, y) ? child(1) : nullptr;
}

int ChoiceAccess::indexOfChild(const QAccessibleInterface* child) const {
  if (child->object() == Choice().view()) return 0;
  return Choice().isEditable() && child->object() == Choice().lineEdit() ? 1 : -1;
}

QStringList ChoiceAccess::actionNames() const {
  return {QAccessibleActionInterface::showMenuAction(), QAccessibleActionInterface::pressAction()};
}

void ChoiceAccess::doAction(const QString& action) {
  if (!actionNames().contains(action) || !Choice().isEnabled()) return;
  if (Choice().view()->isVisible()) {
    Choice().hidePopup();
  } else {
    Choice().showPopup();
  }
}

}  // namespace kladez
