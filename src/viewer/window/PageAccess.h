// What assistive tools read of a page that the view draws itself: its whole text, read only, line
// by line as it would be copied.
#pragma once

#include <QAccessibleWidget>

namespace kladez::viewer {

class PageView;

class PageAccess : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit PageAccess(PageView* view);

  // Tools get it for each PageView from here on.
  static void Install();

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text type) const override;

  int characterCount() const override;
  QString text(int from, int to) const override;
  QString attributes(int offset, int* from, int* to) const override;
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  int selectionCount() const override { return 0; }
  void selection(int, int* from, int* to) const override { *from = *to = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}

 private:
  ~PageAccess() override = default;  // the toolkit's to delete
  const PageView& View() const;
};

}  // namespace kladez::viewer
