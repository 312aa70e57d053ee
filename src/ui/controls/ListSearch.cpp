#include "ui/controls/ListSearch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

#include "ui/controls/Fields.h"
#include "ui/controls/ListTable.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class SearchWire : public QObject {
 public:
  using Filter = std::function<void(const QString&)>;

  SearchWire(TextLine* field, RecordList* list, EmptySearch empty, Filter filter = {})
      : QObject(field), field_(field), list_(list), empty_(empty), filter_(std::move(filter)) {
    connect(field, &TextLine::Change, this,
            [this] { filter_ ? filter_(field_->text()) : Search(); });
    connect(list, &RecordList::CharacterTyped, this, [this](const QString& text) { Begin(text); });
    // Whoever chooses a row by hand has found it.
    connect(list, &RecordList::CurrentRowChanged, this, [this](int row) {
      if (row >= 0) field_->SetFault({});
    });
    field->installEventFilter(this);
  }

  // Up and Down typed in the field belong to the list; a screen closes by the Escape key, and takes
  // none that a field has a use for.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Up || key == Qt::Key_Down) {
        list_->setFocus(Qt::OtherFocusReason);
        return true;
      }
      if (key == Qt::Key_Escape && filter_ && !field_->text().isEmpty()) {
        field_->clear();
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void Search() {
    const QString text = field_->text();
    if (text.isEmpty()) {
      field_->SetFault({});
      if (list_->CurrentRow() < 0) list_->SelectRow(before_);
      if (empty_ == EmptySearch::kReturnsToList && field_->hasFocus()) {
        list_->setFocus(Qt::OtherFocusReason);
      }
    } else if (list_->SelectFirst(text)) {
      field_->SetFault({});
    } else {
      if (list_->CurrentRow() >= 0) before_ = list_->CurrentRow();
      list_->SelectRow(-1);
      field_->SetFault(u"не найдено"_s);
    }
  }

  void Begin(const QString& text) {
    // Emptied without the signal: an empty search would give the focus back at once.
    const bool blocked = field_->blockSignals(true);
    field_->clear();
    field_->blockSignals(blocked);
    field_->setFocus(Qt::OtherFocusReason);
    field_->insert(text);
  }

  TextLine* field_;
  RecordList* list_;
  EmptySearch empty_;
  Filter filter_;
  int before_ = -1;  // the row at which a search that found nothing began
};

bool HasDefaultCommand(const QWidget* window) {
  if (qobject_cast<const QDialog*>(window) == nullptr) return false;
  const auto buttons = window->findChildren<QPushButton*>();
  return std::any_of(buttons.begin(), buttons.end(), [](const QPushButton* button) {
    return button->isDefault() && button->isVisible();
  });
}

// What the control with the keyboard has no use for comes to the screen around it.
class ListKeys : public QObject {
 public:
  ListKeys(QWidget* screen, RecordList* list, QAbstractButton* print)
      : QObject(screen), screen_(screen), list_(list), print_(print) {
    screen->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (TakesTableKey(list_, *key)) return true;
    const auto modifiers = key->modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier) return TakeCommand(key->key());
    return modifiers == Qt::NoModifier && TakeKey(key->key());
  }

 private:
  bool TakeCommand(int key) {
    TextLine* search = list_->SearchField();
    switch (key) {
      case Qt::Key_F:
        search != nullptr ? search->setFocus(Qt::ShortcutFocusReason)
                          : list_->setFocus(Qt::ShortcutFocusReason);
        return true;
      case Qt::Key_P:
        if (print_ != nullptr) print_->click();
        return print_ != nullptr;
      default:
        return false;
    }
  }

  bool TakeKey(int key) {
    TextLine* search = list_->SearchField();
    switch (key) {
      case Qt::Key_Insert:
        emit list_->InsertPressed();
        return true;
      case Qt::Key_Delete:
        emit list_->DeletePressed();
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter: {
        const QWidget* in = screen_->window()->focusWidget();
        const bool other_field = qobject_cast<const QLineEdit*>(in) != nullptr && in != search;
        if (other_field || HasDefaultCommand(screen_->window())) return false;
        emit list_->EnterPressed();
        return true;
      }
      case Qt::Key_F3:
        if (search == nullptr) return false;
        if (search->text().isEmpty()) search->setFocus(Qt::ShortcutFocusReason);
        list_->SelectNext(search->text());
        return true;
      default:
        return false;
    }
  }

  QWidget* screen_;
  RecordList* list_;
  QAbstractButton* print_;
};

}  // namespace

void WireSearch(TextLine* field, RecordList* list, EmptySearch empty) {
  list->SetSearchField(field);
  new SearchWire(field, list, empty);
}

void WireFilter(TextLine* field, RecordList* list,
                const std::function<void(const QString&)>& filter) {
  list->SetSearchField(field);
  new SearchWire(field, list, EmptySearch::kStaysInField, filter);
}

void ShareListKeys(QWidget* screen, RecordList* list, QAbstractButton* print) {
  new ListKeys(screen, list, print);
}

}  // namespace kladez
