#include "ui/controls/RememberedSizes.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QStringList>
#include <QWindow>
#include <algorithm>

#include "books/store/SettingsStore.h"
#include "ui/controls/Look.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr auto kOpened = "openedSize";      // the size that a window was shown with
constexpr auto kDragged = "draggedColumn";  // the user has set the width of a column

// The toolkit's own dialogs look after themselves; the message boxes are as large as their texts.
bool IsOurs(const QWidget* window) {
  return window->isWindow() && !window->objectName().isEmpty() &&
         (qobject_cast<const QDialog*>(window) != nullptr ||
          qobject_cast<const QMainWindow*>(window) != nullptr) &&
         qobject_cast<const QMessageBox*>(window) == nullptr &&
         qobject_cast<const QFileDialog*>(window) == nullptr;
}

QString KeyOf(const QWidget* widget) {
  const QSize display = widget->screen()->size();
  QString key = widget->window()->objectName();
  if (!widget->isWindow()) {
    const QWidget* screen = widget->parentWidget();
    while (screen != nullptr && screen->windowTitle().isEmpty()) screen = screen->parentWidget();
    key = (screen != nullptr ? screen->objectName() : key) + u'.' + widget->objectName();
  }
  return key + u"@%1x%2"_s.arg(display.width()).arg(display.height());
}

// "640,480,0": whatever else stands there is passed over.
std::vector<int> ReadNumbers(const SettingsStore& settings, QStringView section,
                             const QString& key) {
  std::vector<int> numbers;
  const QString text = settings.Read({u"Kladez4", section, key, u""});
  for (const QString& part : text.split(u',', Qt::SkipEmptyParts)) numbers.push_back(part.toInt());
  return numbers;
}

void WriteNumbers(SettingsStore& settings, QStringView section, const QString& key,
                  const std::vector<int>& numbers) {
  QStringList parts;
  for (const int number : numbers) parts << QString::number(number);
  settings.Write({u"Kladez4", section, key, u""}, parts.join(u','));
}

// Into the display, and no larger than it.
void KeepOnDisplay(QWidget* window) {
  const QRect room = window->screen()->availableGeometry();
  const QMargins frame =
      window->windowHandle() != nullptr ? window->windowHandle()->frameMargins() : QMargins();
  const QSize most = room.marginsRemoved(frame).size();
  // What asks for more scrolls; a window that the display cuts could not even be closed.
  window->setMinimumSize(window->minimumSize().boundedTo(most));
  window->resize(window->size().boundedTo(most));
  const QRect at = window->frameGeometry();
  if (room.contains(at)) return;
  window->move(
      std::clamp(at.x(), room.left(), std::max(room.left(), room.right() - at.width() + 1)),
      std::clamp(at.y(), room.top(), std::max(room.top(), room.bottom() - at.height() + 1)));
}

}  // namespace

RememberedSizes::RememberedSizes(SettingsStore& settings) : settings_(settings) {
  qApp->installEventFilter(this);
}

// The program may end with its windows open.
RememberedSizes::~RememberedSizes() {
  for (QWidget* widget : QApplication::allWidgets()) {
    if (!widget->isVisible()) continue;
    if (const auto* list = qobject_cast<RecordList*>(widget)) CloseColumns(list);
    if (IsOurs(widget)) Close(widget);
  }
}

bool RememberedSizes::eventFilter(QObject* watched, QEvent* event) {
  const bool show = event->type() == QEvent::Show && !event->spontaneous();
  const bool hide = event->type() == QEvent::Hide && !event->spontaneous();
  if (!show && !hide) return false;
  if (auto* list = qobject_cast<RecordList*>(watched)) {
    show ? OpenColumns(list) : CloseColumns(list);
  } else if (auto* window = qobject_cast<QWidget*>(watched); window != nullptr && IsOurs(window)) {
    show ? Open(window) : Close(window);
  }
  return false;
}

void RememberedSizes::Open(QWidget* window) {
  const auto size = ReadNumbers(settings_, u"Sizes", KeyOf(window));
  if (size.size() == 3 && size[0] > 0 && size[1] > 0) {
    window->resize(size[0], size[1]);
    if (size[2] != 0) window->setWindowState(Qt::WindowMaximized);
  }
  KeepOnDisplay(window);
  window->setProperty(kOpened, window->size());
}

void RememberedSizes::Close(const QWidget* window) {
  const QSize opened = window->property(kOpened).toSize();
  const bool maximized = window->isMaximized();
  if (!opened.isValid() || (opened == window->size() && !maximized)) return;
  const QSize size = maximized ? window->normalGeometry().size() : window->size();
  WriteNumbers(settings_, u"Sizes", KeyOf(window), {size.width(), size.height(), maximized});
}

void RememberedSizes::OpenColumns(RecordList* list) {
  QHeaderView* header = list->header();
  if (!header->property(kDragged).isValid()) {
    header->setProperty(kDragged, false);
    QObject::connect(header, &QHeaderView::sectionResized, header, [header] {
      if (QGuiApplication::mouseButtons() != Qt::NoButton) header->setProperty(kDragged, true);
    });
  }
  const auto widths = ReadNumbers(settings_, u"Columns", KeyOf(list));
  for (int i = 0; i < std::min(header->count(), static_cast<int>(widths.size())); ++i) {
    const bool fixed = header->sectionResizeMode(i) != QHeaderView::Stretch;
    if (fixed && !header->isSectionHidden(i) && widths[i] > 0) header->resizeSection(i, widths[i]);
  }
}

void RememberedSizes::CloseColumns(const RecordList* list) {
  QHeaderView* header = list->header();
  if (!header->property(kDragged).toBool()) return;
  std::vector<int> widths;
  for (int i = 0; i < header->count(); ++i) widths.push_back(header->sectionSize(i));
  WriteNumbers(settings_, u"Columns", KeyOf(list), widths);
  header->setProperty(kDragged, false);
}

}  // namespace kladez
