#include "shell/FirstStepsPanel.h"

#include <QGridLayout>
#include <QLabel>

#include "ui/Link.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct StepRow {
  Place place;
  QStringView name;
  QStringView caption;
  QStringView advice;
};

// In the order of FirstStep.
constexpr std::array<StepRow, kFirstSteps> kRows = {{
    {Place::kFirms, u"step_firm", u"Ваша фирма",
     u"Название, ИНН и счёт, которые встанут в накладные."},
    {Place::kGoods, u"step_goods", u"Товары", u"Справочник: группы, товары, единицы, цены."},
    {Place::kReceipts, u"step_receipt", u"Первый приход",
     u"Что привёз поставщик. Закрытая накладная пополнит склад."},
    {Place::kPrices, u"step_prices", u"Прайс-лист", u"Цены, по которым Вы продаёте."},
    {Place::kShipments, u"step_sale", u"Первая продажа",
     u"Расходная накладная: товар уйдёт со склада."},
}};

}  // namespace

FirstStepsPanel::FirstStepsPanel(QLabel* heading, QWidget* parent) : QWidget(parent) {
  setObjectName(u"first_steps"_s);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(look::kGrid);
  grid->setVerticalSpacing(look::kTight);
  grid->setColumnStretch(2, 1);
  grid->addWidget(heading, 0, 0, 1, 3);
  int line = 1;
  for (size_t step = 0; step < kFirstSteps; ++step, ++line) {
    const StepRow& row = kRows[step];
    marks_[step] = new QLabel(this);
    marks_[step]->setObjectName(row.name + u"_mark"_s);
    auto* link = new Link(row.name.toString(), row.caption, RowOf(row.place).icon,
                          Link::Ground::kLight, Link::Form::kRow, this);
    connect(link, &Link::clicked, this, [this, place = row.place] { emit Chosen(place); });
    auto* advice = new QLabel(row.advice.toString(), this);
    advice->setWordWrap(true);
    look::MakeQuiet(advice);
    grid->addWidget(marks_[step], line, 0);
    grid->addWidget(link, line, 1, Qt::AlignLeft);
    grid->addWidget(advice, line, 2);
  }
  auto* demonstration =
      new Link(u"open_demonstration"_s, u"Посмотреть демонстрационную базу", look::IconName::kOpen,
               Link::Ground::kLight, Link::Form::kRow, this);
  connect(demonstration, &Link::clicked, this, &FirstStepsPanel::DemonstrationWanted);
  demonstration_ = demonstration;
  grid->setRowMinimumHeight(line++, look::kMargin);
  grid->addWidget(demonstration, line++, 1, 1, 2, Qt::AlignLeft);
  grid->setRowStretch(line, 1);
}

void FirstStepsPanel::Show(const FirstSteps& steps, bool has_demonstration) {
  for (size_t step = 0; step < kFirstSteps; ++step) {
    const bool done = steps.IsDone(static_cast<FirstStep>(step));
    marks_[step]->setText(done ? u"✓"_s : u"%1."_s.arg(step + 1));
    marks_[step]->setAccessibleName(done ? u"Шаг %1 сделан"_s.arg(step + 1)
                                         : u"Шаг %1 не сделан"_s.arg(step + 1));
  }
  demonstration_->setVisible(has_demonstration);
}

}  // namespace kladez
