#include "ShownTexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>

#include "Screens.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

bool IsOfCalendar(const QObject* control) {
  while (control != nullptr && !control->inherits("QCalendarWidget")) control = control->parent();
  return control != nullptr;
}

// A child screen lies in the main window, whose menus and links are told once.
QString ScreenOf(const QObject* control) {
  while (control != nullptr && !kScreens.contains(control->objectName())) {
    control = control->parent();
  }
  return control == nullptr ? u"frmMain"_s : control->objectName();
}

class Texts {
 public:
  void Add(const QObject* of, QString text) {
    text.replace(u'\n', u"\\n"_s);
    if (!text.isEmpty()) lines_ << ScreenOf(of) + u'\t' + of->objectName() + u'\t' + text;
  }
  const QStringList& Lines() const { return lines_; }

 private:
  QStringList lines_;
};

// What stands before a figure, a date or a name in a label is the program's own, the rest is not.
QString OwnPart(const QString& text) {
  const qsizetype digit = text.indexOf(QRegularExpression(u"[0-9«]"_s));
  return digit < 0 ? text : text.first(digit) + u'…';
}

void AddControl(Texts& texts, QWidget* control) {
  if (const auto* label = qobject_cast<QLabel*>(control)) texts.Add(label, OwnPart(label->text()));
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) {
    texts.Add(button, OwnPart(button->text()));
  }
  if (const auto* box = qobject_cast<QGroupBox*>(control)) texts.Add(box, box->title());
  if (const auto* tabs = qobject_cast<QTabBar*>(control)) {
    for (int i = 0; i < tabs->count(); ++i) texts.Add(tabs->parent(), tabs->tabText(i));
  }
  if (const auto* hint = qobject_cast<HintPicture*>(control)) {
    texts.Add(hint, hint->Content().heading);
    texts.Add(hint, hint->Content().body);
  }
  if (const auto* field = qobject_cast<QLineEdit*>(control)) {
    texts.Add(field, field->placeholderText());
  }
  if (const auto* list = qobject_cast<RecordList*>(control)) {
    texts.Add(list, list->EmptyText());
    for (int column = 0; list->model() && column < list->model()->columnCount(); ++column) {
      texts.Add(list, list->model()->headerData(column, Qt::Horizontal).toString());
    }
  }
  if (control->toolTip() != control->whatsThis()) texts.Add(control, OwnPart(control->toolTip()));
}

}  // namespace

QStringList ShownTexts(QWidget* window) {
  Texts texts;
  texts.Add(window, OwnPart(window->windowTitle()));
  for (QWidget* control : window->findChildren<QWidget*>()) {
    if (control->window() == window && !IsOfCalendar(control)) AddControl(texts, control);
  }
  for (const QAction* action : window->findChildren<QAction*>()) {
    if (!action->objectName().startsWith(u"qt_"_s) && !IsOfCalendar(action))
      texts.Add(action, action->text());
  }
  return texts.Lines();
}

}  // namespace kladez
