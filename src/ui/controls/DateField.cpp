#include "ui/controls/DateField.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QScreen>
#include <QStyleOptionFrame>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>

#include "books/store/Clock.h"
#include "formats/Dates.h"
#include "formats/TypedDate.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPause = 600;  // milliseconds after which somebody has typed what was meant

QCalendarWidget* NewCalendar(QWidget* field) {
  auto* calendar = new QCalendarWidget(field);
  calendar->setWindowFlag(Qt::Popup);
  // Names of months and days in the calendar are Russian whatever the machine speaks.
  calendar->setLocale(QLocale(QLocale::Russian, QLocale::Russia));
  calendar->setFirstDayOfWeek(Qt::Monday);
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setAccessibleName(u"Календарь"_s);
  return calendar;
}

}  // namespace

DateField::DateField(QDate date, const Clock& clock, QWidget* parent)
    : TextLine(parent), clock_(clock), pause_(new QTimer(this)) {
  QAction* open = addAction(look::Icon(look::IconName::kCalendar), TrailingPosition);
  open->setToolTip(u"Календарь (Alt+↓)"_s);
  connect(open, &QAction::triggered, this, &DateField::OpenCalendar);
  setToolTip(u"Дата: 31.12.2026, 31.12, 31 или с — сегодня. Стрелки меняют день."_s);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  pause_->setSingleShot(true);
  pause_->setInterval(kPause);
  connect(pause_, &QTimer::timeout, this, &DateField::TellChange);
  connect(this, &TextLine::Change, this, &DateField::Read);
  connect(this, &QLineEdit::editingFinished, this, &DateField::Finish);
  setDate(date);
}

void DateField::setDate(QDate date) {
  if (!date.isValid()) return;
  date_ = date;
  setText(DateText(date));
  if (!told_.isValid()) told_ = date;
  TellChange();
}

void DateField::Read() {
  // A date that came from a file may be older than those that are typed.
  const bool shown = date_.isValid() && text() == DateText(date_);
  const auto date = shown ? std::optional(date_) : ReadTypedDate(text(), clock_.Today());
  if (date) date_ = *date;
  SetFault(date ? QString() : u"Это не дата. Пишите 31.12.2026, 31.12 или 31."_s);
  pause_->start();
}

void DateField::Finish() {
  if (!IsSound()) return;
  if (text() != DateText(date_)) setText(DateText(date_));
  TellChange();
}

void DateField::TellChange() {
  pause_->stop();
  if (date_ == told_ || !IsSound()) return;
  told_ = date_;
  emit dateChanged(date_);
}

// From a text that is no date there is no way to the next day.
void DateField::Step(int days, int months) {
  if (!IsSound() || isReadOnly()) return;
  setDate(date_.addMonths(months).addDays(days));
  selectAll();
}

void DateField::keyPressEvent(QKeyEvent* event) {
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool plain = modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier;
  if (event->key() == Qt::Key_Down && modifiers == Qt::AltModifier) return OpenCalendar();
  if (plain && IsTodayLetter(event->text()) && !isReadOnly()) {
    setDate(clock_.Today());
    return selectAll();
  }
  if (modifiers != Qt::NoModifier) return TextLine::keyPressEvent(event);
  switch (event->key()) {
    case Qt::Key_Up:
      return Step(1);
    case Qt::Key_Down:
      return Step(-1);
    case Qt::Key_PageUp:
      return Step(0, 1);
    case Qt::Key_PageDown:
      return Step(0, -1);
    case Qt::Key_F4:
      return OpenCalendar();
    default:
      TextLine::keyPressEvent(event);
  }
}

// A wheel that passes over the field on its way through the form changes nothing.
void DateField::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) return event->ignore();
  constexpr int kNotch = 120;
  wheel_ += event->angleDelta().y();
  if (wheel_ / kNotch != 0) Step(wheel_ / kNotch);
  wheel_ %= kNotch;
  event->accept();
}

void DateField::OpenCalendar() {
  if (isReadOnly()) return;
  if (calendar_ == nullptr) {
    calendar_ = NewCalendar(this);
    const auto pick = [this](QDate date) {
      calendar_->hide();
      setDate(date);
      selectAll();
    };
    connect(calendar_, &QCalendarWidget::clicked, this, pick);
    connect(calendar_, &QCalendarWidget::activated, this, pick);
  }
  calendar_->setSelectedDate(date_);
  const QSize size = calendar_->sizeHint();
  const QRect room = screen()->availableGeometry();
  QPoint at = mapToGlobal(QPoint(0, height()));
  if (at.y() + size.height() > room.bottom()) at.ry() -= height() + size.height();
  at.rx() = std::clamp(at.x(), room.left(), std::max(room.left(), room.right() - size.width()));
  calendar_->move(at);
  calendar_->show();
  calendar_->setFocus();
}

QSize DateField::sizeHint() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const int text = fontMetrics().horizontalAdvance(u"00.00.0000"_s) + 3 * look::kGrid;
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  const QSize inner(text + icon, TextLine::sizeHint().height());
  const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
  return {inner.width() + frame, inner.height()};
}

}  // namespace kladez
