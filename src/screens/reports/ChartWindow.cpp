#include "screens/reports/ChartWindow.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/reports/ChartPrinting.h"
#include "screens/reports/ChartWidget.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

// Of the name of the goods, which may have hundreds of letters, what leaves the chart its room; the
// period at the end stays.
QString ShownTitle(const QString& title) {
  constexpr int kHead = 140;
  constexpr int kTail = 40;
  return title.size() <= kHead + kTail ? title
                                       : title.left(kHead) + u" ... "_s + title.right(kTail);
}

}  // namespace

ChartWindow::ChartWindow(AppContext& context, const ChartGrid& grid, QWidget* parent)
    : QDialog(parent), context_(context) {
  setObjectName(u"graphic"_s);
  setWindowTitle(ShownTitle(grid.title));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  title_ = new QLabel(this);
  title_->setObjectName(u"title"_s);
  title_->setTextFormat(Qt::PlainText);
  title_->setText(ShownTitle(grid.title));
  title_->setFont(look::HeadingFont(title_->font()));
  title_->setAlignment(Qt::AlignCenter);
  title_->setWordWrap(true);
  // A name without a blank does not wrap, and must not widen the window beyond the display.
  QSizePolicy policy = title_->sizePolicy();
  policy.setHorizontalPolicy(QSizePolicy::Ignored);
  title_->setSizePolicy(policy);
  chart_ = new ChartWidget(this);
  chart_->setObjectName(u"MSChart1"_s);
  chart_->SetGrid(grid);
  QGroupBox* kinds = NewKinds();

  print_ = NewCommand(this, u"GoldButton1"_s, u"&Печать"_s, look::IconName::kPrint);
  close_ = NewCommand(this, u"Command1"_s, u"&Закрыть"_s);
  AddTwin(this, u"Command2"_s, close_);
  for (QPushButton* button : {print_, close_}) {
    button->setMinimumWidth(std::max(12 * look::kGrid, button->sizeHint().width()));
  }
  auto* foot = new QHBoxLayout;
  foot->setSpacing(look::kGrid);
  foot->addWidget(kinds);
  foot->addStretch();
  foot->addWidget(print_, 0, Qt::AlignBottom);
  foot->addWidget(close_, 0, Qt::AlignBottom);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(title_);
  layout->addWidget(chart_, 1);
  layout->addLayout(foot);
  resize(look::ByLetters(this, 112, 76));

  first_kind_->setChecked(true);
  first_kind_->setFocus();
  connect(print_, &QPushButton::clicked, this, &ChartWindow::Print);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
}

QGroupBox* ChartWindow::NewKinds() {
  auto* frame = new QGroupBox(u"Вид отображения графика"_s, this);
  auto* row = new QHBoxLayout(frame);
  look::SetPanelMargins(row);
  row->setSpacing(0);
  first_kind_ = NewKind(u"Option1"_s, u"&3D/Колонки"_s, ChartKind::k3DBars, frame);
  NewKind(u"Option2"_s, u"3D/&Линии"_s, ChartKind::k3DLines, frame);
  NewKind(u"Option3"_s, u"&2D/Колонки"_s, ChartKind::k2DBars, frame);
  NewKind(u"Option4"_s, u"2D/Л&инии"_s, ChartKind::k2DLines, frame);
  row->addWidget(new HintPicture(HintFor(u"graphic", u"Вид отображения графика"), {chart_}, frame));
  return frame;
}

QRadioButton* ChartWindow::NewKind(const QString& name, const QString& caption, ChartKind kind,
                                   QGroupBox* frame) {
  auto* option = new QRadioButton(caption, frame);
  option->setObjectName(name);
  connect(option, &QRadioButton::toggled, this, [this, kind](bool on) {
    if (on) chart_->SetKind(kind);
  });
  auto* row = static_cast<QBoxLayout*>(frame->layout());
  row->addWidget(option);
  row->addWidget(new HintPicture(HintFor(u"graphic", u"Option"), {option}, frame));
  row->addSpacing(look::kGrid);  // a question mark belongs to the option before it
  return option;
}

void ChartWindow::Print() { ChartPrinting(context_, chart_->Grid(), chart_->Kind(), this).exec(); }

}  // namespace kladez
