#include "screens/reports/ChartWindow.h"

#include <QBuffer>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QRadioButton>
#include <QVBoxLayout>

#include "screens/reports/ChartImage.h"
#include "screens/reports/ChartPrinting.h"
#include "screens/reports/ChartWidget.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/FieldNote.h"
#include "ui/controls/TableSaving.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

constexpr char kKindProperty[] = "kind";

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
  copy_ = NewCommand(this, u"copy"_s, u"&Копировать"_s, look::IconName::kCopy);
  save_ = NewCommand(this, u"save"_s, u"&Сохранить..."_s, look::IconName::kSave);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(title_);
  layout->addWidget(chart_, 1);
  layout->addWidget(kinds, 0, Qt::AlignLeft);
  layout->addLayout(NewCommandRow({copy_, save_}, {print_, close_}));
  resize(look::ByLetters(this, 112, 76));

  for (QRadioButton* kind : kinds_) {
    if (kind->property(kKindProperty).toInt() == static_cast<int>(StoredKind())) {
      kind->setChecked(true);
      kind->setFocus();
    }
  }
  connect(copy_, &QPushButton::clicked, this, &ChartWindow::Copy);
  connect(save_, &QPushButton::clicked, this, &ChartWindow::Save);
  connect(print_, &QPushButton::clicked, this, &ChartWindow::Print);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
}

QGroupBox* ChartWindow::NewKinds() {
  auto* frame = new QGroupBox(u"Вид отображения графика"_s, this);
  auto* row = new QHBoxLayout(frame);
  look::SetPanelMargins(row);
  row->setSpacing(0);
  NewKind(u"Option1"_s, u"&3D/Колонки"_s, ChartKind::k3DBars, frame);
  NewKind(u"Option2"_s, u"3D/&Линии"_s, ChartKind::k3DLines, frame);
  NewKind(u"Option3"_s, u"&2D/Колонки"_s, ChartKind::k2DBars, frame);
  NewKind(u"Option4"_s, u"2D/Л&инии"_s, ChartKind::k2DLines, frame);
  row->addWidget(new HintPicture(HintFor(u"graphic", u"Вид отображения графика"), {chart_}, frame));
  return frame;
}

void ChartWindow::NewKind(const QString& name, const QString& caption, ChartKind kind,
                          QGroupBox* frame) {
  auto* option = new QRadioButton(caption, frame);
  option->setObjectName(name);
  option->setProperty(kKindProperty, static_cast<int>(kind));
  kinds_.push_back(option);
  connect(option, &QRadioButton::toggled, this, [this, kind](bool on) {
    if (on) chart_->SetKind(kind);
  });
  connect(option, &QRadioButton::clicked, this, [this, kind] {
    context_.settings.Write(settings::kChartKind, QString::number(static_cast<int>(kind)));
  });
  auto* row = static_cast<QBoxLayout*>(frame->layout());
  row->addWidget(option);
  row->addWidget(new HintPicture(HintFor(u"graphic", u"Option"), {option}, frame));
  row->addSpacing(look::kGrid);  // a question mark belongs to the option before it
}

ChartKind ChartWindow::StoredKind() const {
  const int kind = context_.settings.ReadInt(settings::kChartKind);
  return kind > 0 && kind <= static_cast<int>(ChartKind::k2DLines) ? static_cast<ChartKind>(kind)
                                                                   : ChartKind::k3DBars;
}

// Whoever pastes takes the drawing where it can, else the picture.
void ChartWindow::Copy() {
  auto* both = new QMimeData;
  both->setData(u"image/svg+xml"_s, ChartAsSvg(chart_->Grid(), chart_->Kind()));
  both->setImageData(ChartAsPicture(chart_->Grid(), chart_->Kind()));
  QGuiApplication::clipboard()->setMimeData(both);
  FieldNote::Show(copy_, u"График в буфере обмена."_s, FieldNote::Stays::kForAMoment);
}

void ChartWindow::Save() {
  static const std::vector<FileType> kTypes = {{u"Рисунок PNG (*.png)"_s, u"png"_s},
                                               {u"Чертёж SVG (*.svg)"_s, u"svg"_s}};
  SaveOutside(save_, u"Сохранить график"_s, chart_->Grid().title, kTypes,
              [this](const QString& type) {
                if (type == u"svg") return ChartAsSvg(chart_->Grid(), chart_->Kind());
                QBuffer png;
                ChartAsPicture(chart_->Grid(), chart_->Kind()).save(&png, "PNG");
                return png.data();
              });
}

void ChartWindow::Print() { ChartPrinting(context_, chart_->Grid(), chart_->Kind(), this).exec(); }

}  // namespace kladez
