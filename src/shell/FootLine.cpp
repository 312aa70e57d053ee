#include "shell/FootLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <algorithm>

#include "formats/Dates.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

// In twips: the strip and the line at the foot together take 1350 from the panel's height.
constexpr int kFootHeight = 450;

// It keeps its room while it is away, so that nothing moves when it comes.
QProgressBar* NewProgressBar(QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  bar->setObjectName(u"ProgressBar1"_s);
  bar->setAccessibleName(u"Ход работы"_s);
  bar->setRange(0, 100);
  bar->setTextVisible(false);
  bar->setFixedSize(15 * look::kGrid, 2 * look::kGrid);
  QSizePolicy policy = bar->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  bar->setSizePolicy(policy);
  bar->hide();
  return bar;
}

QString RoleText(UserRole role) {
  switch (role) {
    case UserRole::kSeller:
      return u"Пользователь: Продавец"_s;
    case UserRole::kDirector:
      return u"Пользователь: Директор"_s;
    case UserRole::kNone:
      break;
  }
  return u"Пользователь не выбран"_s;
}

}  // namespace

FootLine::FootLine(QWidget* parent)
    : QWidget(parent),
      role_(new QLabel(this)),
      today_(new QLabel(this)),
      progress_bar_(NewProgressBar(this)) {
  setFixedHeight(look::FromTwips(kFootHeight));
  role_->setObjectName(u"role"_s);
  today_->setObjectName(u"today"_s);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(look::kMargin, 0, look::kMargin, 0);
  row->addWidget(role_);
  row->addStretch();
  row->addWidget(progress_bar_);
  row->addSpacing(look::kMargin);
  row->addWidget(today_);
}

void FootLine::Tell(UserRole role, QDate today) {
  role_->setText(RoleText(role));
  today_->setText(u"Сегодня "_s + LongDateText(today));
}

void FootLine::ShowProgress(double part) {
  progress_bar_->setValue(static_cast<int>(part * progress_bar_->maximum()));
  progress_bar_->setVisible(part < 1);
  if (progress_bar_->isVisible()) progress_bar_->repaint();
}

}  // namespace kladez
