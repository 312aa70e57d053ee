#include "ui/Link.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace kladez {
namespace {

constexpr int kSmallIcon = 2 * look::kGrid;
constexpr int kLargeIcon = 3 * look::kGrid;

}  // namespace

Link::Link(const QString& name, QStringView text, look::IconName icon, Ground ground, Form form,
           QWidget* parent)
    : QAbstractButton(parent),
      ground_(ground),
      form_(form),
      hot_icon_(look::Icon(icon, Color(true))) {
  setObjectName(name);
  setText(text.toString());
  setIcon(look::Icon(icon, Color(false)));
  const int size = form == Form::kRow ? kSmallIcon : kLargeIcon;
  setIconSize(QSize(size, size));
  setCursor(Qt::PointingHandCursor);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
}

const look::Shade& Link::Color(bool hot) const {
  if (ground_ == Ground::kDark) return hot ? look::kLinkHover : look::kLink;
  return hot ? look::kAccentHover : look::kAccent;
}

QSize Link::sizeHint() const {
  ensurePolished();
  const QSize text = fontMetrics().size(Qt::TextSingleLine, this->text());
  const int icon = iconSize().width();
  if (form_ == Form::kRow) {
    return QSize(icon + text.width() + 3 * look::kTight, qMax(icon, text.height()) + look::kTight);
  }
  return QSize(qMax(icon, text.width()) + look::kMargin, icon + text.height() + look::kGrid);
}

void Link::paintEvent(QPaintEvent*) {
  const bool hot = hot_ && isEnabled();
  QPainter painter(this);
  QRect text_room = rect();
  QRect icon_room(QPoint(), iconSize());
  if (form_ == Form::kRow) {
    icon_room.moveCenter(QPoint(look::kTight + iconSize().width() / 2, height() / 2));
    text_room.setLeft(icon_room.right() + 1 + look::kTight);
  } else {
    icon_room.moveCenter(QPoint(width() / 2, look::kTight + iconSize().height() / 2));
    text_room.setTop(icon_room.bottom());
  }
  (hot ? hot_icon_ : icon()).paint(&painter, icon_room);
  QFont font = painter.font();
  font.setUnderline(hot);
  painter.setFont(font);
  painter.setPen(QColor(Color(hot)));
  painter.drawText(
      text_room,
      form_ == Form::kRow ? Qt::AlignVCenter | Qt::AlignLeft : Qt::AlignCenter | Qt::TextSingleLine,
      text());
  if (!hasFocus()) return;
  painter.setPen(QPen(QColor(Color(hot)), 1, Qt::DotLine));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Link::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void Link::SetHot(bool hot) {
  if (hot == hot_) return;
  hot_ = hot;
  update();
}

void Link::mouseMoveEvent(QMouseEvent* event) {
  QAbstractButton::mouseMoveEvent(event);
  SetHot(rect().contains(event->position().toPoint()));
}

// A dialog takes the pointer away without the pointer having moved: only that lights it again.
bool Link::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Leave:
    case QEvent::Hide:
    case QEvent::WindowBlocked:
      SetHot(false);
      break;
    default:
      break;
  }
  return QAbstractButton::event(event);
}

}  // namespace kladez
