#include "ui/controls/FieldNote.h"

#include <QAccessible>
#include <QEvent>
#include <algorithm>

#include "ui/controls/Look.h"

namespace kladez {
namespace {

constexpr int kMoment = 4000;  // milliseconds to read a few words in

}  // namespace

FieldNote::FieldNote(QWidget* field) : QLabel(field->window()), field_(field) {
  setObjectName(QStringLiteral("note"));
  setTextFormat(Qt::PlainText);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setAutoFillBackground(true);
  setMargin(look::kTight / 2);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  look::MakeWarning(this);
  field->installEventFilter(this);
  window()->installEventFilter(this);
  connect(field, &QObject::destroyed, this, &QObject::deleteLater);
}

FieldNote* FieldNote::Find(const QWidget* field) {
  for (auto* note : field->window()->findChildren<FieldNote*>(Qt::FindDirectChildrenOnly)) {
    if (note->field_ == field) return note;
  }
  return nullptr;
}

QString FieldNote::Of(const QWidget* field) {
  const FieldNote* note = Find(field);
  return note == nullptr || note->isHidden() ? QString() : note->text();
}

void FieldNote::Show(QWidget* field, const QString& text, Stays stays) {
  FieldNote* note = Find(field);
  if (text.isEmpty() || !field->isVisible()) {
    if (note != nullptr) note->hide();
    return;
  }
  if (note == nullptr) note = new FieldNote(field);
  if (note->timer_ != 0) note->killTimer(note->timer_);
  note->timer_ = stays == Stays::kForAMoment ? note->startTimer(kMoment) : 0;
  const bool told = note->isVisible() && note->text() == text;
  note->setText(text);
  note->Place();
  note->show();
  note->raise();
  if (told) return;
  QAccessibleEvent event(note, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

// Below the field, or above it where the window ends; never beyond its edges.
void FieldNote::Place() {
  adjustSize();
  const QRect room = window()->rect();
  QPoint at = field_->mapTo(window(), QPoint(0, field_->height()));
  if (at.y() + height() > room.bottom()) at.ry() -= field_->height() + height();
  at.rx() = std::clamp(at.x(), 0, std::max(0, room.width() - width()));
  move(at);
}

bool FieldNote::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Hide:
      if (watched == field_) hide();
      break;
    case QEvent::Move:
    case QEvent::Resize:
      if (isVisible()) Place();
      break;
    default:
      break;
  }
  return QLabel::eventFilter(watched, event);
}

void FieldNote::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_) return QLabel::timerEvent(event);
  killTimer(timer_);
  timer_ = 0;
  hide();
}

}  // namespace kladez
