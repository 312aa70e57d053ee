#include "viewer/window/PageAccess.h"

#include "viewer/window/PageView.h"

namespace kladez::viewer {
namespace {

QAccessibleInterface* AccessFor(const QString&, QObject* object) {
  auto* view = qobject_cast<PageView*>(object);
  return view != nullptr ? new PageAccess(view) : nullptr;
}

}  // namespace

PageAccess::PageAccess(PageView* view) : QAccessibleWidget(view, QAccessible::Document) {}

void PageAccess::Install() {
  static const bool installed = [] {
    QAccessible::installFactory(&AccessFor);
    return true;
  }();
  Q_UNUSED(installed);
}

const PageView& PageAccess::View() const { return *static_cast<const PageView*>(object()); }

void* PageAccess::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State PageAccess::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = true;
  state.multiLine = true;
  return state;
}

QString PageAccess::text(QAccessible::Text type) const {
  return type == QAccessible::Value ? View().Text() : QAccessibleWidget::text(type);
}

int PageAccess::characterCount() const { return static_cast<int>(View().Text().size()); }

QString PageAccess::text(int from, int to) const {
  return View().Text().mid(from, to < 0 ? -1 : to - from);
}

QString PageAccess::attributes(int, int* from, int* to) const {
  *from = 0;
  *to = characterCount();
  return {};
}

}  // namespace kladez::viewer
