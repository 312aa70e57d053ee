#include "shell/HomeScreen.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include "books/copies/CopyFolder.h"
#include "books/reports/FirstSteps.h"
#include "books/reports/SalesFigures.h"
#include "books/store/Catalogue.h"
#include "books/store/Errors.h"
#include "formats/Numbers.h"
#include "screens/reports/ChartWidget.h"
#include "screens/stock/documents/OpenDocument.h"
#include "shell/FirstStepsPanel.h"
#include "shell/MorningList.h"
#include "ui/Hints.h"
#include "ui/Link.h"
#include "ui/controls/Columns.h"
#include "ui/controls/Guard.h"
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
  look::Paint(heading, QPalette::WindowText, look::kAccent);
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
  sold_today_ = add(u"Label18"_s, u"За сегодня:"_s);
  sold_this_month_ = add(u"Label20"_s, u"За месяц:"_s);
  sold_this_year_ = add(u"Label15"_s, u"За год:"_s);
  morning_ = new MorningList(card);
  sums->addWidget(morning_, line, 0, 1, 2);
  sums->setRowStretch(line, 1);
  connect(morning_, &MorningList::DocumentChosen, this, [this](const DocumentRef& document) {
    OpenDocument(context_, document, window());
    morning_->setFocus();
  });
  connect(morning_, &MorningList::GoodsChosen, this, [this] { emit Chosen(Place::kOrder); });
  connect(morning_, &MorningList::CopiesChosen, this, &HomeScreen::CopiesWanted);
  first_steps_ = new FirstStepsPanel(NewColumnHeading(u"С чего начать", card), card);
  connect(first_steps_, &FirstStepsPanel::Chosen, this, &HomeScreen::Chosen);
  connect(first_steps_, &FirstStepsPanel::DemonstrationWanted, this,
          &HomeScreen::DemonstrationWanted);
  first_steps_->hide();
  auto* room = new QVBoxLayout;
  room->addWidget(first_steps_, 1);
  room->addWidget(NewChart(), 1);
  auto* layout = new Columns(look::kGap);
  layout->setContentsMargins(look::kMargin, look::kMargin, look::kGrid, look::kMargin);
  layout->Add(sums, 2);
  layout->Add(room, 3);
  card->setLayout(layout);
  return card;
}

QWidget* HomeScreen::NewChart() {
  chart_room_ = new QWidget(this);
  auto* chart_head = new QHBoxLayout;
  chart_head->addWidget(NewColumnHeading(u"График продаж за месяц по дням", chart_room_), 1);
  chart_ = new ChartWidget(chart_room_);
  chart_->setObjectName(u"MSChart1"_s);
  chart_head->addWidget(AddHint(u"Picture4", {chart_}, chart_room_));
  chart_cover_ = new QWidget(chart_);
  chart_cover_->setObjectName(u"Picture3"_s);
  chart_cover_->setAutoFillBackground(true);
  chart_cover_->setBackgroundRole(QPalette::Base);
  auto* cover = new QVBoxLayout(chart_);
  cover->setContentsMargins(0, 0, 0, 0);
  cover->addWidget(chart_cover_);
  auto* chart = new QVBoxLayout(chart_room_);
  chart->setContentsMargins(0, 0, 0, 0);
  chart->addLayout(chart_head);
  chart->addWidget(chart_, 1);
  return chart_room_;
}

QLayout* HomeScreen::NewOptions() {
  // The question mark stands between the quotation marks.
  show_hints_ = NewOption(u"Check1"_s, u"Отображать подсказку \"     \" на главной"_s);
  show_figures_ = NewOption(u"Check2"_s, u"Показывать отчеты на главной странице"_s);
  show_panel_ = NewOption(u"Check3"_s, u"Показывать панель Kladez"_s);
  auto* sign = new QLabel(show_hints_);
  sign->setPixmap(look::Icon(look::IconName::kHint, look::kQuiet).pixmap(look::kMargin));
  sign->setAttribute(Qt::WA_TransparentForMouseEvents);
  QStyleOptionButton option;
  option.initFrom(show_hints_);
  option.rect = QRect(QPoint(), show_hints_->sizeHint());
  const QFontMetrics metrics = show_hints_->fontMetrics();
  const QString before = show_hints_->text().left(show_hints_->text().indexOf(u'"') + 1);
  const int text =
      style()->subElementRect(QStyle::SE_CheckBoxContents, &option, show_hints_).left();
  const int blanks = metrics.horizontalAdvance(u"     "_s);
  sign->move(text + metrics.horizontalAdvance(before) + (blanks - look::kMargin) / 2,
             (show_hints_->sizeHint().height() - look::kMargin) / 2);
  connect(show_hints_, &QCheckBox::clicked, this, [this] {
    Store(settings::kTip, show_hints_);
    ClickTip();
  });
  connect(show_figures_, &QCheckBox::clicked, this, [this] {
    Store(settings::kReport, show_figures_);
    ClickReport();
  });
  connect(show_panel_, &QCheckBox::clicked, this, [this] {
    Store(settings::kPanel, show_panel_);
    ClickPanel();
  });
  auto* row = new WrapRow(look::kGap, look::kTight);
  row->addWidget(show_hints_);
  row->AddGroup(
      {show_figures_, AddHint(u"Picture22", {show_hints_, show_figures_, show_panel_}, this)},
      look::kTight);
  row->addWidget(show_panel_);
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
  show_hints_->setChecked(context_.settings.ReadInt(settings::kTip) != 0);
  show_figures_->setChecked(context_.settings.ReadInt(settings::kReport) != 0);
  show_panel_->setChecked(context_.settings.ReadInt(settings::kPanel) != 0);
  ClickTip();
  ClickReport();
  ClickPanel();
}

void HomeScreen::ClickTip() {
  for (HintPicture* hint : hints_) hint->setVisible(show_hints_->isChecked());
}

void HomeScreen::ClickReport() {
  figures_->setVisible(show_figures_->isChecked());
  if (show_figures_->isChecked()) ShowFigures();
}

void HomeScreen::ShowFigures() {
  for (QLabel* sum : {sold_today_, sold_this_month_, sold_this_year_}) sum->setText(u"..."_s);
  chart_cover_->show();
  // Once it is cancelled nothing is shown: sums of some of the documents would be wrong ones.
  Guarded(this, [this] {
    LongWork work(this, u"Подсчитываются продажи..."_s);
    const SalesFigures figures =
        CollectSalesFigures(context_.data, context_.session, context_.clock.Today(), work.Told());
    sold_today_->setText(FormatMoney(figures.day));
    sold_this_month_->setText(FormatMoney(figures.month));
    sold_this_year_->setText(FormatMoney(figures.year));
    chart_->SetGrid(figures.by_day);
    chart_cover_->hide();
    ShowFirstSteps(figures);
    ShowMorning(figures);
  });
}

void HomeScreen::ShowFirstSteps(const SalesFigures& figures) {
  FirstSteps steps;
  if (!figures.has_several_days) steps = ReadFirstSteps(context_.data, context_.session);
  const bool lead = !figures.has_several_days && !steps.AllDone();
  first_steps_->setVisible(lead);
  chart_room_->setVisible(!lead);
  if (!lead) return;
  first_steps_->Show(steps, FindDemonstration(context_.data, context_.session).has_value());
}

// What can't be read is left out: the screens that stand on it tell why.
void HomeScreen::ShowMorning(const SalesFigures& figures) {
  std::vector<LowStock> low;
  IgnoreErrors([&] { low = CollectLowStock(context_.data, context_.session); });
  std::optional<QDateTime> last_copy;
  if (context_.keeping != nullptr) {
    IgnoreErrors([&] { last_copy = LastCopyOf(context_.data, context_.session); });
  }
  morning_->Show(MorningRows(figures, low, last_copy, context_.clock.Today()));
}

void HomeScreen::ClickPanel() { emit PanelToggled(show_panel_->isChecked()); }

}  // namespace kladez
