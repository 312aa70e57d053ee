#include "Inspection.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTreeView>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString Named(const QWidget* widget) {
  QString name = widget->objectName();
  if (const auto* label = qobject_cast<const QLabel*>(widget)) name = label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) name = button->text();
  return QString::fromLatin1(widget->metaObject()->className()) + u" \""_s + name + u'"';
}

// What toolkit widgets are made of is their own affair.
bool IsPartOfControl(const QWidget* widget) {
  for (const QWidget* parent = widget->parentWidget(); parent != nullptr;
       parent = parent->parentWidget()) {
    if (qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent) ||
        qobject_cast<const QLineEdit*>(parent) || qobject_cast<const QAbstractItemView*>(parent) ||
        qobject_cast<const QHeaderView*>(parent)) {
      return true;
    }
    if (parent->isWindow()) break;
  }
  return widget->objectName().startsWith(u"qt_"_s);
}

QList<QWidget*> ControlsOf(QWidget* window) {
  QList<QWidget*> controls;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == window && !IsPartOfControl(widget)) {
      controls.append(widget);
    }
  }
  return controls;
}

bool IsCut(const QLabel* label) {
  if (label->text().isEmpty() || label->textFormat() == Qt::RichText) return false;
  const QRect room = label->contentsRect();
  if (label->wordWrap()) return label->heightForWidth(label->width()) > label->height() + 1;
  QString text = label->text();
  if (label->buddy() != nullptr) text.remove(u'&');
  const QSize wanted = label->fontMetrics().size(0, text);
  return wanted.width() > room.width() + 1 || wanted.height() > room.height() + 2;
}

bool IsCut(const QAbstractButton* button) {
  if (button->text().isEmpty()) return false;
  const QSize wanted =
      button->minimumSizeHint().isValid() ? button->minimumSizeHint() : button->sizeHint();
  return wanted.width() > button->width() + 1 || wanted.height() > button->height() + 1;
}

QStyleOptionViewItem OptionOf(const QTreeView* list) {
  QStyleOptionViewItem option;
  option.initFrom(list);
  option.widget = list;
  option.font = list->font();
  return option;
}

void AppendCutHeadings(const QTreeView* list, QStringList& faults) {
  const QHeaderView* header = list->header();
  for (int i = 0; i < header->count(); ++i) {
    if (header->isSectionHidden(i) || header->sectionSize(i) == 0) continue;
    const QString title = list->model()->headerData(i, Qt::Horizontal).toString();
    if (header->fontMetrics().horizontalAdvance(title) > header->sectionSize(i) - 2) {
      faults.append(u"заголовок \""_s + title + u"\" обрезан в "_s + Named(list));
    }
  }
}

// A number of which a part is missing is another number.
void AppendCutNumbers(const QTreeView* list, QStringList& faults) {
  for (QModelIndex row = list->indexAt(QPoint()); row.isValid(); row = list->indexBelow(row)) {
    if (list->visualRect(row).top() > list->viewport()->height()) break;
    for (int column = 0; column < list->model()->columnCount(); ++column) {
      const QModelIndex cell = row.siblingAtColumn(column);
      const auto side = static_cast<Qt::Alignment>(cell.data(Qt::TextAlignmentRole).toInt());
      if (!(side & Qt::AlignRight) || list->isColumnHidden(column)) continue;
      const int wanted = list->itemDelegate()->sizeHint(OptionOf(list), cell).width();
      if (wanted > list->columnWidth(column)) {
        faults.append(u"число \""_s + cell.data().toString() + u"\" обрезано в "_s + Named(list));
      }
    }
  }
}

void AppendCutTexts(QWidget* control, QStringList& faults) {
  bool cut = false;
  if (const auto* label = qobject_cast<QLabel*>(control)) cut = IsCut(label);
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) cut = IsCut(button);
  if (const auto* line = qobject_cast<QLineEdit*>(control)) {
    cut = line->height() < line->fontMetrics().height();
  }
  if (const auto* combo = qobject_cast<QComboBox*>(control)) {
    cut = combo->height() + 1 < combo->minimumSizeHint().height();
  }
  if (cut) faults.append(u"обрезано: "_s + Named(control));
  if (const auto* list = qobject_cast<QTreeView*>(control)) {
    AppendCutHeadings(list, faults);
    AppendCutNumbers(list, faults);
  }
}

bool LiesInScrollArea(const QWidget* widget) {
  const QWidget* parent = widget->parentWidget();
  return parent != nullptr && parent->parentWidget() != nullptr &&
         qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) != nullptr;
}

void AppendMisplaced(const QList<QWidget*>& controls, QStringList& faults) {
  for (QWidget* control : controls) {
    const QWidget* parent = control->parentWidget();
    if (parent == nullptr || control->isWindow() || LiesInScrollArea(control)) continue;
    if (!parent->rect().adjusted(-1, -1, 1, 1).contains(control->geometry())) {
      faults.append(u"выходит за край: "_s + Named(control));
    }
    for (QWidget* other : controls) {
      if (other <= control || other->parentWidget() != parent) continue;
      const QRect common = control->geometry().intersected(other->geometry());
      if (common.width() > 1 && common.height() > 1) {
        faults.append(u"перекрываются: "_s + Named(control) + u" и "_s + Named(other));
      }
    }
  }
}

QList<QKeySequence> LettersOf(const QWidget* control) {
  QList<QKeySequence> letters;
  if (const auto* label = qobject_cast<const QLabel*>(control); label && label->buddy()) {
    letters.append(QKeySequence::mnemonic(label->text()));
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
    letters.append(button->shortcut());
  }
  if (const auto* box = qobject_cast<const QGroupBox*>(control)) {
    letters.append(QKeySequence::mnemonic(box->title()));
  }
  if (const auto* tabs = qobject_cast<const QTabBar*>(control)) {
    for (int i = 0; i < tabs->count(); ++i)
      letters.append(QKeySequence::mnemonic(tabs->tabText(i)));
  }
  if (qobject_cast<const QMenuBar*>(control)) {
    for (const QAction* menu : control->actions()) {
      if (menu->isVisible()) letters.append(QKeySequence::mnemonic(menu->text()));
    }
  }
  letters.removeAll(QKeySequence());
  return letters;
}

void AppendDoubledLetters(const QList<QWidget*>& controls, QStringList& faults) {
  QMap<QKeySequence, QWidget*> taken;
  for (QWidget* control : controls) {
    for (const QKeySequence& letter : LettersOf(control)) {
      QWidget*& first = taken[letter];
      if (first != nullptr) {
        faults.append(letter.toString() + u" у двоих: "_s + Named(first) + u" и "_s +
                      Named(control));
      }
      first = control;
    }
  }
}

bool IsInteractive(const QWidget* widget) {
  return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
         qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
         qobject_cast<const QAbstractItemView*>(widget) || widget->focusPolicy() != Qt::NoFocus;
}

// Containers pass the focus on; they have nothing of their own to name.
bool IsContainer(const QWidget* widget) {
  return widget->inherits("QScrollArea") || widget->inherits("QTabWidget") ||
         widget->inherits("QGroupBox") || widget->inherits("QStackedWidget");
}

}  // namespace

QStringList FaultsOf(QWidget* window) {
  QStringList faults;
  const QList<QWidget*> controls = ControlsOf(window);
  for (QWidget* control : controls) AppendCutTexts(control, faults);
  AppendMisplaced(controls, faults);
  AppendDoubledLetters(controls, faults);
  const QSize room = window->screen()->availableSize();
  if (window->width() > room.width() || window->height() > room.height()) {
    faults.append(u"окно больше экрана: %1x%2"_s.arg(window->width()).arg(window->height()));
  }
  return faults;
}

QStringList UnnamedControls(QWidget* window) {
  QStringList unnamed;
  for (QWidget* control : ControlsOf(window)) {
    if (!IsInteractive(control) || IsContainer(control)) continue;
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
    const QString name = face == nullptr ? QString() : face->text(QAccessible::Name).trimmed();
    // A list to choose from that only says what is chosen says not what for.
    const auto* choice = qobject_cast<const QComboBox*>(control);
    if (name.isEmpty() || (choice != nullptr && name == choice->currentText())) {
      unnamed.append(Named(control));
    }
  }
  return unnamed;
}

}  // namespace kladez
