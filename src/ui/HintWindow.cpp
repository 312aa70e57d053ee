#include "ui/HintWindow.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

HintWindow::HintWindow(const Hint& hint, QWidget* parent)
    : QDialog(parent),
      heading_(new QLabel(this)),
      body_(new QPlainTextEdit(hint.body, this)),
      close_(new QPushButton(u"&Закрыть"_s, this)),
      escape_(new QAction(this)) {
  setObjectName(u"helper"_s);
  setWindowTitle(u"Подсказка"_s);
  setAttribute(Qt::WA_DeleteOnClose);
  heading_->setObjectName(u"Label1"_s);
  heading_->setTextFormat(Qt::PlainText);
  heading_->setText(hint.heading);
  heading_->setFont(look::HeadingFont(font()));
  heading_->setWordWrap(true);
  body_->setObjectName(u"Text1"_s);
  body_->setReadOnly(true);
  body_->setAccessibleName(hint.heading);
  body_->setFrameShape(QFrame::NoFrame);
  body_->viewport()->setAutoFillBackground(false);
  body_->setMinimumSize(look::ByLetters(body_, 52, 13));
  close_->setObjectName(u"Command4"_s);
  close_->setDefault(true);
  escape_->setObjectName(u"Command1"_s);
  escape_->setShortcut(Qt::Key_Escape);
  addAction(escape_);
  auto* commands = new QHBoxLayout;
  commands->addStretch();
  commands->addWidget(close_);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(heading_);
  layout->addWidget(body_, 1);
  layout->addLayout(commands);
  connect(close_, &QPushButton::clicked, this, &QWidget::close);
  connect(escape_, &QAction::triggered, this, &QWidget::close);
  close_->setFocus();
}

void HintWindow::Show(QWidget* parent, const Hint& hint) {
  static QPointer<HintWindow> shown;
  delete shown;
  shown = new HintWindow(hint, parent);
  shown->show();
  shown->activateWindow();
}

void HintWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isVisible() && !isActiveWindow()) close();
}

}  // namespace kladez
