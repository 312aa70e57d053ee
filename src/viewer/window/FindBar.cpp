#include "viewer/window/FindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "viewer/window/PageView.h"
#include "viewer/window/ViewerLook.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

FindBar::FindBar(PageView* view, QWidget* parent)
    : QWidget(parent),
      view_(view),
      text_(new QLineEdit(this)),
      previous_(new QPushButton(u"&Назад"_s, this)),
      next_(new QPushButton(u"&Далее"_s, this)),
      result_(new QLabel(this)) {
  setObjectName(u"FindBar"_s);
  text_->setObjectName(u"FindText"_s);
  text_->setClearButtonEnabled(true);
  auto* label = new QLabel(u"Н&айти:"_s, this);
  label->setBuddy(text_);
  result_->setObjectName(u"FindResult"_s);
  auto* close = new QPushButton(u"&Закрыть"_s, this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(look::kGap, look::kGap / 2, look::kGap, look::kGap / 2);
  row->setSpacing(look::kGap);
  row->addWidget(label);
  row->addWidget(text_, 1);
  row->addWidget(previous_);
  row->addWidget(next_);
  row->addWidget(result_, 1);
  row->addWidget(close);
  connect(previous_, &QPushButton::clicked, this, &FindBar::FindPrevious);
  connect(next_, &QPushButton::clicked, this, &FindBar::FindNext);
  connect(text_, &QLineEdit::textChanged, result_, &QLabel::clear);
  connect(close, &QPushButton::clicked, this, &FindBar::Close);
  hide();
}

void FindBar::Open() {
  const QString selected = view_->SelectedText();
  if (!selected.isEmpty() && !selected.contains(u'\n') && !selected.contains(u'\t'))
    text_->setText(selected);
  show();
  text_->setFocus();
  text_->selectAll();
}

void FindBar::FindNext() { Find(false); }

void FindBar::FindPrevious() { Find(true); }

void FindBar::Find(bool backward) {
  if (text_->text().isEmpty()) {
    Open();
    return;
  }
  result_->setText(view_->FindText(text_->text(), backward) ? QString() : u"Не найдено"_s);
}

void FindBar::Close() {
  hide();
  view_->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    Close();
  else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    Find((event->modifiers() & Qt::ShiftModifier) != 0);
  else
    QWidget::keyPressEvent(event);
}

}  // namespace kladez::viewer
