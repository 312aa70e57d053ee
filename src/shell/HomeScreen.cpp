#include "shell/HomeScreen.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include "books/reports/SalesFigures.h"
#include "formats/Numbers.h"
#include "screens/reports/ChartWidget.h"
#include "ui/Hints.h"
#include "ui/Link.h"
#include "ui/controls/Columns.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/WrapRow.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// The links of this screen are numbered as those of the panel, but for the last.
int LinkNumber(Place place) {
  return place == Place::kCurrency ? static_cast<int>(Place::kHome) : static_cast<int>(place);
}

QLabel* NewColumnHeading(QStringView text, QWidget* parent) {
  auto* heading = new QLabel(text.toString(), parent);
  heading->setFont(look::HeadingFont(heading->font()));
  QPalette palette = heading->palette();
  palette.setColor(QPalette::WindowText, look::kAccent);
  heading->setPalette(palette);
  heading->setForegroundRole(QPalette::WindowText);  // on a card it would be that of a field
  return heading;
}

QFrame* NewCard(QWidget* parent) {
  auto* card = new QFrame(parent);
  card->setFrameShape(QFrame::StyledPanel);
  card->setAutoFillBackground(true);
  card->setBackgroundRole(QPalette::Base);
  return card;
}

}  // namespace

HomeScreen::HomeScreen(AppContext& context, QWidget* parent) : QWidget(parent), context_(context) {
  setObjectName(u"Main"_s);
  setWindowTitle(u"Главная"_s);
  auto* cards = new Columns(look::kGrid);
  for (const PlaceGroup group :
       {PlaceGroup::kStore, PlaceGroup::kReports, PlaceGroup::kDirectories}) {
    cards->Add(NewLinks(group));
  }
  figures_ = NewFigures();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
  layout->setSpacing(look::kGrid);
  layout->addLayout(cards);
  layout->addWidget(figures_, 1);
  layout->addStretch(0);
  layout->addLayout(NewOptions());
}

QWidget* HomeScreen::NewLinks(PlaceGroup group) {
  QFrame* card = NewCard(this);
  auto* grid = new QGridLayout(card);
  grid->setContentsMargins(look::kMargin, look::kMargin, look::kGrid, look::kMargin);
  grid->setVerticalSpacing(look::kTight);
  grid->setColumnStretch(0, 1);
  grid->addWidget(NewColumnHeading(GroupHeading(group), card), 0, 0, 1, 2);
  int line = 1;
  for (const PlaceRow& row : Places()) {
    if (row.group != group) continue;
    auto* link = new Link(u"go%1"_s.arg(LinkNumber(row.place)), row.link, row.icon,
                          Link::Ground::kLight, Link::Form::kRow, card);
    connect(link, &Link::clicked, this, [this, place = row.place] { emit Chosen(place); });
    grid->addWidget(link, line, 0, Qt::AlignLeft);
    grid->addWidget(AddHint(row.hint, {link}, card), line++, 1);
  }
  grid->setRowStretch(line, 1);
  return card;
}

QWidget* HomeScreen::NewFigures() {
  QFrame* card = NewCard(this);
  auto* sums = new QGridLayout;
  sums->setVerticalSpacing(look::kGrid);
  sums->addWidget(NewColumnHeading(u"Реализация", card), 0, 0);
  sums->addWidget(AddHint(u"Picture5", {}, card), 0, 1, Qt::AlignRight);
  int line = 1;
  const auto add = [&](const QString& name, const QString& caption) {
    auto* label = new QLabel(u"0.00"_s, card);
    label->setObjectName(name);
    label->setFont(look::NumberFont(look::HeadingFont(label->font())));
    sums->addWidget(new QLabel(caption, card), line, 0);
    sums->addWidget(label, line++, 1, Qt::AlignRight);
    return label;
  };
  Label18 = add(u"Label18"_s, u"За сегодня:"_s);
  Label20 = add(u"Label20"_s, u"За месяц:"_s);
  Label15 = add(u"Label15"_s, u"За год:"_s);
  sums->setRowStretch(line, 1);
  auto* chart_head = new QHBoxLayout;
  chart_head->addWidget(NewColumnHeading(u"График продаж за месяц по дням", card), 1);
  MSChart1 = new ChartWidget(card);
  MSChart1->setObjectName(u"MSChart1"_s);
  chart_head->addWidget(AddHint(u"Picture4", {MSChart1}, card));
  Picture3 = new QWidget(MSChart1);
  Picture3->setObjectName(u"Picture3"_s);
  Picture3->setAutoFillBackground(true);
  Picture3->setBackgroundRole(QPalette::Base);
  auto* cover = new QVBoxLayout(MSChart1);
  cover->setContentsMargins(0, 0, 0, 0);
  cover->addWidget(Picture3);
  auto* chart = new QVBoxLayout;
  chart->addLayout(chart_head);
  chart->addWidget(MSChart1, 1);
  auto* layout = new Columns(look::kGap);
  layout->setContentsMargins(look::kMargin, look::kMargin, look::kGrid, look::kMargin);
  layout->Add(sums, 1);
  layout->Add(chart, 3);
  card->setLayout(layout);
  return card;
}

QLayout* HomeScreen::NewOptions() {
  // The question mark stands between the quotation marks.
  Check1 = NewOption(u"Check1"_s, u"Отображать подсказку \"     \" на главной"_s);
  Check2 = NewOption(u"Check2"_s, u"Показывать отчеты на главной странице"_s);
  Check3 = NewOption(u"Check3"_s, u"Показывать панель Kladez"_s);
  auto* sign = new QLabel(Check1);
  sign->setPixmap(look::Icon(look::IconName::kHint, look::kQuiet).pixmap(look::kMargin));
  sign->setAttribute(Qt::WA_TransparentForMouseEvents);
  QStyleOptionButton option;
  option.initFrom(Check1);
  option.rect = QRect(QPoint(), Check1->sizeHint());
  const QFontMetrics metrics = Check1->fontMetrics();
  const QString before = Check1->text().left(Check1->text().indexOf(u'"') + 1);
  const int text = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, Check1).left();
  const int blanks = metrics.horizontalAdvance(u"     "_s);
  sign->move(text + metrics.horizontalAdvance(before) + (blanks - look::kMargin) / 2,
             (Check1->sizeHint().height() - look::kMargin) / 2);
  connect(Check1, &QCheckBox::clicked, this, [this] {
    Store(settings::kTip, Check1);
    ClickTip();
  });
  connect(Check2, &QCheckBox::clicked, this, [this] {
    Store(settings::kReport, Check2);
    ClickReport();
  });
  connect(Check3, &QCheckBox::clicked, this, [this] {
    Store(settings::kPanel, Check3);
    ClickPanel();
  });
  auto* row = new WrapRow(look::kGap, look::kTight);
  row->addWidget(Check1);
  row->AddGroup({Check2, AddHint(u"Picture22", {Check1, Check2, Check3}, this)}, look::kTight);
  row->addWidget(Check3);
  return row;
}

QCheckBox* HomeScreen::NewOption(const QString& name, const QString& caption) {
  auto* box = new QCheckBox(caption, this);
  box->setObjectName(name);
  return box;
}

HintPicture* HomeScreen::AddHint(QStringView picture, std::initializer_list<QWidget*> about,
                                 QWidget* parent) {
  auto* hint = new HintPicture(HintFor(u"Main", picture), about, parent);
  hint->setObjectName(picture.toString());
  QSizePolicy policy = hint->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  hint->setSizePolicy(policy);
  hints_.push_back(hint);
  return hint;
}

void HomeScreen::Store(const Setting& setting, const QCheckBox* box) {
  context_.settings.Write(setting, box->isChecked() ? u"1"_s : u"0"_s);
}

void HomeScreen::Activate() {
  Check1->setChecked(context_.settings.ReadInt(settings::kTip) != 0);
  Check2->setChecked(context_.settings.ReadInt(settings::kReport) != 0);
  Check3->setChecked(context_.settings.ReadInt(settings::kPanel) != 0);
  ClickTip();
  ClickReport();
  ClickPanel();
}

void HomeScreen::ClickTip() {
  for (HintPicture* hint : hints_) hint->setVisible(Check1->isChecked());
}

void HomeScreen::ClickReport() {
  figures_->setVisible(Check2->isChecked());
  if (Check2->isChecked()) ShowFigures();
}

void HomeScreen::ShowFigures() {
  for (QLabel* sum : {Label18, Label20, Label15}) sum->setText(u"..."_s);
  Picture3->show();
  LongWork work(this, u"Подсчитываются продажи..."_s);
  const auto figures =
      CollectSalesFigures(context_.data, context_.session, context_.clock.Today(), work.Callback());
  // Sums of some of the documents would be wrong ones.
  if (!figures) return;
  Label18->setText(FormatMoney(figures->day));
  Label20->setText(FormatMoney(figures->month));
  Label15->setText(FormatMoney(figures->year));
  MSChart1->SetGrid(figures->by_day);
  Picture3->hide();
}

void HomeScreen::ClickPanel() { emit PanelToggled(Check3->isChecked()); }

}  // namespace kladez
