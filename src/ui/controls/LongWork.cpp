#include "ui/controls/LongWork.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QPointerEvent>
#include <QProgressBar>
#include <QVBoxLayout>
#include <QWindow>
#include <vector>

#include "ui/controls/Commands.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPatience = 200;     // milliseconds without a bar
constexpr int kBetweenLooks = 40;  // milliseconds
constexpr int kWholeBar = 1000;
constexpr const char* kWayOut = "leadsElsewhere";

// All that is running, the innermost last.
std::vector<LongWork*>& Running() {
  static std::vector<LongWork*> running;
  return running;
}

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

LongWork::LongWork(QWidget* parent, const QString& doing) : parent_(parent), doing_(doing) {
  Running().push_back(this);
  since_start_.start();
}

bool LongWork::IsRunning() { return !Running().empty(); }

LongWork::~LongWork() {
  std::erase(Running(), this);
  qApp->removeEventFilter(this);
  bar_window_.reset();
  if (to_close_) {
    QMetaObject::invokeMethod(to_close_.data(), &QWidget::close, Qt::QueuedConnection);
  } else if (next_context_) {
    QMetaObject::invokeMethod(next_context_.data(), next_, Qt::QueuedConnection);
  }
}

bool LongWork::LeaveFor(QObject* context, const std::function<void()>& command) {
  if (Running().empty()) return false;
  for (LongWork* work : Running()) work->ended_ = true;
  Running().front()->next_context_ = context;
  Running().front()->next_ = command;
  return true;
}

void LongWork::LetPass(QWidget* way_out) { way_out->setProperty(kWayOut, true); }

Progress LongWork::Told() {
  return [this](double part) { return Advance(part); };
}

bool LongWork::Advance(double part) {
  if (ended_) return false;
  if (!bar_window_) {
    if (since_start_.elapsed() < kPatience) return true;
    ShowBar();
  } else if (!next_look_.hasExpired()) {
    return true;
  }
  bar_->setValue(static_cast<int>(part * kWholeBar));
  QCoreApplication::processEvents();
  next_look_.setRemainingTime(kBetweenLooks);
  return !ended_;
}

void LongWork::ShowBar() {
  bar_window_ =
      std::make_unique<QDialog>(parent_, Qt::Dialog | Qt::CustomizeWindowHint |
                                             Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  bar_window_->setObjectName(u"LongWork"_s);
  bar_window_->setWindowTitle(u"Kladez"_s);
  auto* label = new QLabel(bar_window_.get());
  label->setTextFormat(Qt::PlainText);
  label->setText(doing_);
  bar_ = new QProgressBar(bar_window_.get());
  bar_->setRange(0, kWholeBar);
  bar_->setMinimumWidth(look::ByLetters(bar_, 40));
  auto* stop = NewCommand(bar_window_.get(), u"stop"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(bar_window_.get());
  look::SetDialogMargins(layout);
  layout->addWidget(label);
  layout->addWidget(bar_);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(stop, nullptr));
  connect(stop, &QPushButton::clicked, bar_window_.get(), &QDialog::reject);
  connect(bar_window_.get(), &QDialog::rejected, this, [this] { ended_ = true; });
  // Not modal by the toolkit's means: those would swallow the closing of the window behind.
  qApp->installEventFilter(this);
  bar_window_->show();
  bar_window_->raise();
  bar_window_->activateWindow();
  stop->setFocus();
}

bool LongWork::BelongsToBar(QObject* object) const {
  if (object == bar_window_->windowHandle()) return true;
  const auto* widget = qobject_cast<QWidget*>(object);
  return widget != nullptr && widget->window() == bar_window_.get();
}

bool LongWork::LeadsElsewhere(QObject* object, const QEvent* event) {
  if (object->isWindowType() && event->isPointerEvent()) {
    const auto* pointer = static_cast<const QPointerEvent*>(event);
    object = QApplication::widgetAt(pointer->points().first().globalPosition().toPoint());
  }
  while (object != nullptr && !object->property(kWayOut).toBool()) object = object->parent();
  return object != nullptr;
}

bool LongWork::StandsOn(const QWidget* window) const {
  for (const QWidget* below = parent_; below != nullptr; below = below->parentWidget()) {
    if (below == window) return window->isWindow();
  }
  return false;
}

bool LongWork::eventFilter(QObject* watched, QEvent* event) {
  if (IsInput(event->type())) return !BelongsToBar(watched) && !LeadsElsewhere(watched, event);
  if (event->type() == QEvent::Close) {
    auto* window = qobject_cast<QWidget*>(watched);
    if (window == nullptr || !StandsOn(window)) return false;
    to_close_ = window;
    ended_ = true;
    event->ignore();
    return true;
  }
  return false;
}

}  // namespace kladez
