// What assistive tools are told of a list to choose from: its label for a name, the chosen entry
// for a value. The toolkit's own gives the entry for both on this system, so that a list of clients
// calls itself "-".
#pragma once

#include <QAccessibleWidget>

class QComboBox;

namespace kladez {

class ChoiceAccess : public QAccessibleWidget {
 public:
  explicit ChoiceAccess(QComboBox* choice);

  // Makes it the face of every such list of the program.
  static void Install();

  QString text(QAccessible::Text type) const override;
  // A new value chooses the entry of that text; one that can be typed into takes any.
  void setText(QAccessible::Text type, const QString& text) override;
  QAccessible::State state() const override;

  // The entries, and the line of one that can be typed into.
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

  QStringList actionNames() const override;
  void doAction(const QString& action) override;

 private:
  QComboBox& Choice() const;
};

}  // namespace kladez
