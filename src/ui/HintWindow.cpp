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
      Label1(new QLabel(this)),
      Text1(new QPlainTextEdit(hint.body, this)),
      Command4(new QPushButton(u"&Закрыть"_s, this)),
      Command1(new QAction(this)) {
  setObjectName(u"helper"_s);
  setWindowTitle(u"Подсказка"_s);
  setAttribute(Qt::WA_DeleteOnClose);
  Label1->setObjectName(u"Label1"_s);
  Label1->setTextFormat(Qt::PlainText);
  Label1->setText(hint.heading);
  Label1->setFont(look::HeadingFont(font()));
  Label1->setWordWrap(true);
  Text1->setObjectName(u"Text1"_s);
  Text1->setReadOnly(true);
  Text1->setAccessibleName(hint.heading);
  Text1->setFrameShape(QFrame::NoFrame);
  Text1->viewport()->setAutoFillBackground(false);
  Text1->setMinimumSize(52 * look::kGrid, 13 * look::kGrid);
  Command4->setObjectName(u"Command4"_s);
  Command4->setDefault(true);
  Command1->setObjectName(u"Command1"_s);
  Command1->setShortcut(Qt::Key_Escape);
  addAction(Command1);
  auto* commands = new QHBoxLayout;
  commands->addStretch();
  commands->addWidget(Command4);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(Label1);
  layout->addWidget(Text1, 1);
  layout->addLayout(commands);
  connect(Command4, &QPushButton::clicked, this, &QWidget::close);
  connect(Command1, &QAction::triggered, this, &QWidget::close);
  Command4->setFocus();
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
