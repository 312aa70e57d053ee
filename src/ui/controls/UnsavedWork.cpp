#include "ui/controls/UnsavedWork.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "ui/controls/Messages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// All of them, in the order in which their windows came up.
std::vector<UnsavedWork*>& Works() {
  static std::vector<UnsavedWork*> works;
  return works;
}

// Unlike the toolkit's own test it looks through windows: a dialog stands on its parent.
bool StandsOn(const QObject* window, const QObject* root) {
  while (window != nullptr && window != root) window = window->parent();
  return window == root;
}

}  // namespace

UnsavedWork::UnsavedWork(QWidget* window, Ways ways)
    : QObject(window), window_(window), ways_(std::move(ways)) {
  window->installEventFilter(this);
  Works().push_back(this);
}

UnsavedWork::~UnsavedWork() { std::erase(Works(), this); }

bool UnsavedWork::MayGo() {
  if (given_up_ || window_->isHidden() || !ways_.is_changed()) return true;
  window_->activateWindow();
  switch (AskYesNoCancel(window_, u"Сохранить изменения?"_s, window_->windowTitle())) {
    case Answer::kYes:
      return ways_.save();
    case Answer::kNo:
      given_up_ = true;
      qApp->installEventFilter(this);
      return true;
    case Answer::kCancel:
      return false;
  }
  Q_UNREACHABLE();
}

bool UnsavedWork::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  // Somebody works on: the window has not gone after all, as when a log-out was called off.
  if (given_up_ && (type == QEvent::KeyPress || type == QEvent::MouseButtonPress) &&
      watched->isWidgetType() && StandsOn(watched, window_)) {
    ForgetAnswer();
  }
  if (watched != window_) return false;
  const bool escape = type == QEvent::KeyPress && window_->isWindow() &&
                      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
  if (type != QEvent::Close && !escape) return false;
  if (!MayLeave(window_)) {
    event->ignore();
    return true;
  }
  // A form that was saved has closed itself with its answer, which the way out would take back.
  return escape && window_->isHidden();
}

void UnsavedWork::ForgetAnswer() {
  given_up_ = false;
  qApp->removeEventFilter(this);
}

bool MayLeave(const QWidget* root) {
  const std::vector<QPointer<UnsavedWork>> works(Works().begin(), Works().end());
  bool may = true;
  for (auto work = works.rbegin(); work != works.rend() && may; ++work) {
    if (!*work) continue;
    const QWidget* window = (*work)->window_;
    if (root != nullptr && !StandsOn(window, root)) continue;
    const bool shown = !window->isHidden();
    may = (*work)->MayGo();
    // A form has handed its record over to the window below, which gets it only after this: that
    // window is asked at the next attempt.
    if (shown && window->isHidden() && window != root) may = false;
  }
  if (!may) {
    for (UnsavedWork* work : Works()) work->ForgetAnswer();
  }
  return may;
}

}  // namespace kladez
