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

  GoldButton1 = NewCommand(this, u"GoldButton1"_s, u"&Печать"_s, look::IconName::kPrint);
  Command1 = NewCommand(this, u"Command1"_s, u"&Закрыть"_s);
  AddTwin(this, u"Command2"_s, Command1);
  for (QPushButton* button : {GoldButton1, Command1}) {
    button->setMinimumWidth(std::max(12 * look::kGrid, button->sizeHint().width()));
  }
  auto* foot = new QHBoxLayout;
  foot->setSpacing(look::kGrid);
  foot->addWidget(kinds);
  foot->addStretch();
  foot->addWidget(GoldButton1, 0, Qt::AlignBottom);
  foot->addWidget(Command1, 0, Qt::AlignBottom);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(title_);
  layout->addWidget(chart_, 1);
  layout->addLayout(foot);
  resize(112 * look::kGrid, 76 * look::kGrid);

  Option1->setChecked(true);
  Option1->setFocus();
  connect(GoldButton1, &QPushButton::clicked, this, &ChartWindow::Print);
  connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
}

QGroupBox* ChartWindow::NewKinds() {
  auto* frame = new QGroupBox(u"Вид отображения графика"_s, this);
  auto* row = new QHBoxLayout(frame);
  look::SetPanelMargins(row);
  row->setSpacing(0);
  Option1 = NewKind(u"Option1"_s, u"&3D/Колонки"_s, ChartKind::k3DBars, frame);
  Option2 = NewKind(u"Option2"_s, u"3D/&Линии"_s, ChartKind::k3DLines, frame);
  Option3 = NewKind(u"Option3"_s, u"&2D/Колонки"_s, ChartKind::k2DBars, frame);
  Option4 = NewKind(u"Option4"_s, u"2D/Л&инии"_s, ChartKind::k2DLines, frame);
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

void ChartWindow::Print() { ChartPrinting(context_, chart_->grid(), chart_->kind(), this).exec(); }

}  // namespace kladez
