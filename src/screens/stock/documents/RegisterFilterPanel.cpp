#include "screens/stock/documents/RegisterFilterPanel.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "formats/Dates.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/DateField.h"
#include "ui/controls/FoldButton.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Look.h"
#include "ui/controls/PeriodLists.h"
#include "ui/controls/WrapRow.h"

namespace kladez {

using namespace Qt::StringLiterals;

RegisterFilterPanel::RegisterFilterPanel(AppContext& context, const DocumentScreens& screens,
                                         QWidget* parent)
    : QWidget(parent),
      context_(context),
      screens_(screens),
      sort_(BookOf(screens.kind).sort),
      options_(new QWidget(this)) {
  fold_ = new FoldButton(u"GoldButton1"_s, u"Фи&льтр"_s, options_, true, this);
  fold_->setFlat(true);

  auto* head = new QHBoxLayout;
  head->setSpacing(look::kGrid);
  head->addWidget(fold_);
  head->addStretch();
  if (BookOf(screens.kind).in_warehouse) {
    warehouse_ = new TextChoice(context.session.warehouses, this);
    warehouse_->setObjectName(u"warehouse"_s);
    BoundByLetters(warehouse_, 14);
    head->addWidget(NewLabel(u"С&клад:"_s, warehouse_, this));
    head->addWidget(warehouse_);
    if (QWidget* hint = NewHint(u"Склад", {warehouse_})) head->addWidget(hint);
    connect(warehouse_, &QComboBox::currentIndexChanged, this, &RegisterFilterPanel::Changed);
  }

  auto* row = new WrapRow(look::kGrid, look::kTight);
  options_->setLayout(row);
  BuildPeriod(row);
  row->AddStretch();
  BuildOrder(row);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kTight);
  layout->addLayout(head);
  layout->addWidget(options_);
  layout->addLayout(NewSearch());

  EnableInputs();
}

QLayout* RegisterFilterPanel::NewSearch() {
  search_ = new TextLine(this);
  search_->setObjectName(u"search"_s);
  search_->setClearButtonEnabled(true);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kTight);
  row->addWidget(NewLabel(u"&Найти:"_s, search_, this));
  row->addWidget(search_, 1);
  row->addWidget(new HintPicture(HintFor(screens_.register_name, u"Найти"), {search_}, this));
  return row;
}

QRadioButton* RegisterFilterPanel::NewOption(const QString& name, const QString& caption,
                                             QButtonGroup* group) {
  auto* option = new QRadioButton(caption, options_);
  option->setObjectName(name);
  group->addButton(option);
  return option;
}

// The told inputs have none in the register of transfers.
QWidget* RegisterFilterPanel::NewHint(QStringView place, std::initializer_list<QWidget*> about) {
  if (!HintPlaces(screens_.register_name).contains(place)) return nullptr;
  return new HintPicture(HintFor(screens_.register_name, place), about, this);
}

void RegisterFilterPanel::BuildPeriod(WrapRow* row) {
  const QDate today = context_.clock.Today();
  auto* group = new QButtonGroup(this);
  by_month_ = NewOption(u"by_month"_s, u"За &месяц:"_s, group);
  by_year_ = NewOption(u"by_year"_s, u"За &год:"_s, group);
  by_day_ = NewOption(u"by_day"_s, u"За &число:"_s, group);
  by_month_->setChecked(true);

  month_ = new TextChoice(MonthNames(), options_);
  month_->setObjectName(u"month"_s);
  month_->setMinimumContentsLength(8);
  month_->setCurrentIndex(today.month() - 1);
  year_ = new TextChoice(YearsAround(today.year()), options_);
  year_->setObjectName(u"year"_s);
  year_->setMinimumContentsLength(4);
  year_->Choose(QString::number(today.year()));
  day_ = new DateField(today, context_.clock, options_);
  day_->setObjectName(u"day"_s);

  const auto add = [&](QRadioButton* option, QWidget* input, QStringView place) {
    input->setAccessibleName(option->text().remove(u'&'));
    row->AddGroup({option, input, NewHint(place, {option, input})}, look::kTight);
  };
  add(by_month_, month_, u"За месяц");
  add(by_year_, year_, u"За год");
  add(by_day_, day_, u"За число");
  BuildRange(row, group);

  connect(group, &QButtonGroup::buttonToggled, this, [this](QAbstractButton*, bool on) {
    if (!on) return;
    EnableInputs();
    emit Changed();
  });
  connect(month_, &QComboBox::currentIndexChanged, this, &RegisterFilterPanel::Changed);
  connect(year_, &QComboBox::currentIndexChanged, this, &RegisterFilterPanel::Changed);
  connect(day_, &DateField::dateChanged, this, &RegisterFilterPanel::Changed);
}

void RegisterFilterPanel::BuildRange(WrapRow* row, QButtonGroup* group) {
  const QDate today = context_.clock.Today();
  by_range_ = NewOption(u"by_range"_s, u"с"_s, group);
  const auto new_day = [&](const QString& name, QDate day, const QString& meaning) {
    auto* field = new DateField(day, context_.clock, options_);
    field->setObjectName(name);
    field->setAccessibleName(meaning);
    connect(field, &DateField::dateChanged, this, &RegisterFilterPanel::Changed);
    return field;
  };
  from_ = new_day(u"from"_s, QDate(today.year(), today.month(), 1), u"С какого числа"_s);
  to_ = new_day(u"to"_s, today, u"По какое число"_s);
  row->AddGroup({by_range_, from_, NewLabel(u"по"_s, nullptr, options_), to_,
                 NewHint(u"С какого по какое число", {by_range_, from_, to_})},
                look::kTight);
}

void RegisterFilterPanel::BuildOrder(WrapRow* row) {
  auto* group = new QButtonGroup(this);
  first_to_last_ = NewOption(u"first_to_last"_s, u"&A-Z"_s, group);
  last_to_first_ = NewOption(u"last_to_first"_s, u"&Z-A"_s, group);
  (context_.settings.Read(sort_) == u"ZA" ? last_to_first_ : first_to_last_)->setChecked(true);
  row->AddGroup(
      {first_to_last_, last_to_first_, NewHint(u"Сортировка", {first_to_last_, last_to_first_})},
      look::kGrid);
  connect(group, &QButtonGroup::buttonToggled, this, [this](QAbstractButton*, bool on) {
    if (!on) return;
    context_.settings.Write(sort_, last_to_first_->isChecked() ? u"ZA"_s : u"AZ"_s);
    emit Changed();
  });
}

RegisterFilter RegisterFilterPanel::Filter() const {
  using Period = RegisterFilter::Period;
  return {.period = by_month_->isChecked()  ? Period::kMonth
                    : by_year_->isChecked() ? Period::kYear
                    : by_day_->isChecked()  ? Period::kDay
                                            : Period::kRange,
          .month = month_->currentIndex() + 1,
          .year = year_->Chosen(),
          .day = day_->date(),
          .from = std::min(from_->date(), to_->date()),
          .to = std::max(from_->date(), to_->date())};
}

QString RegisterFilterPanel::Warehouse() const {
  return warehouse_ == nullptr ? QString() : warehouse_->Chosen();
}

bool RegisterFilterPanel::Descending() const { return context_.settings.Read(sort_) == u"ZA"; }

void RegisterFilterPanel::ShowDay(QDate day) {
  {
    const QSignalBlocker quiet(day_);
    day_->setDate(day);
  }
  Show(by_day_);
}

void RegisterFilterPanel::ShowRange(QDate from, QDate to) {
  {
    const QSignalBlocker quiet_from(from_);
    const QSignalBlocker quiet_to(to_);
    from_->setDate(from);
    to_->setDate(to);
  }
  Show(by_range_);
}

void RegisterFilterPanel::Show(QRadioButton* period) {
  if (period->isChecked()) {
    emit Changed();
  } else {
    period->setChecked(true);
  }
}

void RegisterFilterPanel::EnableInputs() {
  month_->setEnabled(by_month_->isChecked());
  year_->setEnabled(by_year_->isChecked());
  day_->setEnabled(by_day_->isChecked());
  from_->setEnabled(by_range_->isChecked());
  to_->setEnabled(by_range_->isChecked());
}

}  // namespace kladez
