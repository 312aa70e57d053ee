#include "shell/ChildHost.h"

#include <QVBoxLayout>
#include <algorithm>

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

// A screen that could use more height than there is gets what there is: only one that can't do with
// it scrolls. What it can do with depends on the width, where its rows go on in a next line.
class ChildLayout : public QVBoxLayout {
 public:
  using QVBoxLayout::QVBoxLayout;
  bool hasHeightForWidth() const override { return false; }
  QSize minimumSize() const override {
    QSize least = QVBoxLayout::minimumSize();
    const QLayoutItem* child = itemAt(0);
    const QLayout* layout = child != nullptr ? child->widget()->layout() : nullptr;
    if (layout != nullptr && layout->hasHeightForWidth()) {
      const QWidget* view = parentWidget()->parentWidget();
      const int width = std::max(least.width(), view->width());
      least.setHeight(std::max(least.height(), layout->minimumHeightForWidth(width)));
    }
    return least;
  }
};

}  // namespace

ChildHost::ChildHost(QWidget* parent)
    : QScrollArea(parent), ground_(new QWidget(this)), layout_(new ChildLayout(ground_)) {
  setObjectName(u"view"_s);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(ground_);
  layout_->setContentsMargins(0, 0, 0, 0);
  way_home_.setSingleShot(true);
  connect(&way_home_, &QTimer::timeout, this, [this] {
    if (!child_) emit LeftEmpty();
  });
}

ChildHost::~ChildHost() {
  if (child_) child_->disconnect(this);
}

void ChildHost::Show(QWidget* child) {
  child_ = child;
  child->setAttribute(Qt::WA_DeleteOnClose);
  layout_->addWidget(child);
  connect(child, &QObject::destroyed, this, [this] { way_home_.start(); });
  child->show();
  (child->focusWidget() != nullptr ? child->focusWidget() : child)->setFocus();
}

void ChildHost::CloseAll() {
  // A screen may have opened another of them beside itself.
  for (const char16_t* name :
       {u"Main", u"main2", u"Sklad", u"Price", u"sprTovar", u"TovPrih", u"TovUhod", u"vnutr"}) {
    for (QWidget* screen : window()->findChildren<QWidget*>(QString::fromUtf16(name))) {
      screen->disconnect(this);
      screen->disconnect(window());
      screen->close();
      screen->deleteLater();
    }
  }
  child_ = nullptr;
  // Whoever closed them has another screen to show.
  way_home_.stop();
}

}  // namespace kladez
