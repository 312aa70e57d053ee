#include "ui/controls/HintPicture.h"

#include <QKeyEvent>

#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

HintPicture::Opener& CurrentOpener() {
  static HintPicture::Opener opener;
  return opener;
}

}  // namespace

HintPicture::HintPicture(const Hint& hint, std::initializer_list<QWidget*> about, QWidget* parent)
    : QToolButton(parent), hint_(hint) {
  setIcon(look::Icon(look::IconName::kHint, look::kQuiet));
  setIconSize(look::IconSize(this));
  setAutoRaise(true);
  // Tabbing goes from field to field.
  setFocusPolicy(about.size() > 0 ? Qt::NoFocus : Qt::TabFocus);
  setToolTip(u"Подсказка (Shift+F1)"_s);
  setAccessibleName(u"Подсказка: "_s + hint_.heading);
  connect(this, &QToolButton::clicked, this, [this] {
    if (CurrentOpener()) CurrentOpener()(window(), hint_);
  });
  for (QWidget* field : about) {
    field->installEventFilter(this);
    field->setAccessibleDescription(hint_.body);
  }
}

// Keys that the widget with the keyboard has no use for come by the widgets around it in turn.
bool HintPicture::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !isVisible() ||
      !static_cast<QKeyEvent*>(event)->matches(QKeySequence::WhatsThis)) {
    return QToolButton::eventFilter(watched, event);
  }
  click();
  return true;
}

void HintPicture::SetOpener(Opener opener) { CurrentOpener() = std::move(opener); }

}  // namespace kladez
