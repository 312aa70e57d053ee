#include "screens/reports/ReportDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "books/reports/Periods.h"
#include "screens/printing/CloseAndShow.h"
#include "screens/reports/ReportWindow.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/DateField.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Reading takes longer than writing.
constexpr double kReadingPart = 0.75;

}  // namespace

ReportDialog::ReportDialog(AppContext& context, const ReportForm& form, QWidget* parent)
    : PeriodDialog(context, form.texts, parent),
      form_(form),
      list_(NewCommand(this, u"list"_s, u"Сп&иском"_s, look::IconName::kReport)) {
  list_->setToolTip(u"Показать отчёт списком: Enter открывает документы строки"_s);
  AddCommand(list_);
  connect(list_, &QPushButton::clicked, this, &ReportDialog::ShowList);
  BuildPeriod();
  QWidget* last = warehouse_;
  for (QWidget* next : std::initializer_list<QWidget*>{all_, current_month_, range_, from_, to_,
                                                       quick_, compare_, list_, yes_, no_}) {
    setTabOrder(last, next);
    last = next;
  }
  warehouse_->setFocus();
}

QRadioButton* ReportDialog::NewOption(const QString& name, const QString& caption) {
  auto* option = new QRadioButton(caption, Frame());
  option->setObjectName(name);
  return option;
}

void ReportDialog::BuildPeriod() {
  all_ = NewOption(u"all"_s, u"&Все"_s);
  current_month_ = NewOption(u"current_month"_s, u"Текущий &месяц"_s);
  current_month_->setToolTip(u"Этот месяц каждого года, за который есть документы"_s);
  range_ = NewOption(u"range"_s, u"&с:"_s);
  all_->setChecked(true);
  const QDate today = Context().clock.Today();
  from_ = new DateField(today, Context().clock, Frame());
  from_->setObjectName(u"from"_s);
  from_->setAccessibleName(u"с:"_s);
  to_ = new DateField(today, Context().clock, Frame());
  to_->setObjectName(u"to"_s);
  QLabel* to_label = NewLabel(u"&по:"_s, to_, Frame());
  compare_ = new QCheckBox(u"С&равнить с прошлым периодом"_s, Frame());
  compare_->setObjectName(u"compare"_s);

  auto* days = new QHBoxLayout;
  days->setSpacing(look::kGrid);
  for (QWidget* part : std::initializer_list<QWidget*>{range_, from_, to_label, to_}) {
    days->addWidget(part);
  }
  days->addStretch();
  auto* compare = WithHint(compare_, HintFor(objectName(), u"Сравнение"));
  compare->addStretch();
  auto* layout = new QVBoxLayout(Frame());
  look::SetDialogMargins(layout);
  layout->addWidget(all_);
  layout->addWidget(current_month_);
  layout->addLayout(days);
  layout->addLayout(NewQuickChoice());
  layout->addLayout(compare);

  const auto enable = [this, to_label](bool on) {
    for (QWidget* part : std::initializer_list<QWidget*>{from_, to_label, to_, compare_})
      part->setEnabled(on);
    if (!on) quick_->setCurrentIndex(-1);
  };
  enable(false);
  connect(range_, &QRadioButton::toggled, this, enable);
}

QHBoxLayout* ReportDialog::NewQuickChoice() {
  QStringList names;
  for (const NamedPeriod& period : kNamedPeriods) names << period.name.toString();
  quick_ = new TextChoice(names, Frame());
  quick_->setObjectName(u"quick"_s);
  quick_->setPlaceholderText(u"не выбран"_s);
  quick_->setCurrentIndex(-1);
  connect(quick_, &QComboBox::currentIndexChanged, this, &ReportDialog::ChooseQuickly);
  // Days that are typed over are no longer those of the name.
  for (DateField* day : {from_, to_}) {
    connect(day, &TextLine::Change, this, [this, day] {
      if (day->hasFocus()) quick_->setCurrentIndex(-1);
    });
  }
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGrid);
  row->addWidget(NewLabel(u"&Быстрый выбор:"_s, quick_, Frame()));
  row->addLayout(WithHint(quick_, HintFor(objectName(), u"Быстрый выбор")));
  row->addStretch();
  return row;
}

void ReportDialog::ChooseQuickly(int named_period) {
  if (named_period < 0) return;
  const DateRange days =
      kNamedPeriods[static_cast<size_t>(named_period)].days(Context().clock.Today());
  range_->setChecked(true);
  from_->setDate(days.from);
  to_->setDate(days.to);
}

ReportScope ReportDialog::Scope() const {
  const PeriodKind kind = range_->isChecked()           ? PeriodKind::kRange
                          : current_month_->isChecked() ? PeriodKind::kCurrentMonth
                                                        : PeriodKind::kAll;
  return {Warehouse(), {kind, Context().clock.Today(), from_->date(), to_->date()}};
}

bool ReportDialog::Compares() const { return range_->isChecked() && compare_->isChecked(); }

TableReport ReportDialog::Table(const ReportScope& scope, const Progress& progress) const {
  const AppContext& context = Context();
  const double half = Compares() ? 0.5 : 1;
  TableReport report = form_.table(context.data, context.session, scope, progress.Piece(0, half));
  if (Compares()) {
    ReportScope earlier = scope;
    const DateRange days = RangeBefore({scope.period.from, scope.period.to}, scope.period.today);
    earlier.period.from = days.from;
    earlier.period.to = days.to;
    SetBeside(report, form_.table(context.data, context.session, earlier, progress.Piece(half, 1)),
              earlier.period);
  }
  return report;
}

void ReportDialog::WritePage(ReportScope scope, const Progress& progress) const {
  if (form_.make != nullptr) {
    const double table_part = Compares() ? 0.6 : 0;
    if (Compares()) scope.below_total = Table(scope, progress.Piece(0, table_part)).beside;
    form_.make(Context(), scope, progress.Piece(table_part, 1));
    return;
  }
  const TableReport report = Table(scope, progress.Piece(0, kReadingPart));
  Context().print_outs.WriteInPieces(kReportPage.toString(), [&](const ByteSink& sink) {
    WriteTableReport(report, scope, sink, progress.Piece(kReadingPart, 1));
  });
}

void ReportDialog::Ok() {
  if (!FieldsAreSound(this)) return;
  Guarded(this, [this] {
    {
      LongWork work(this, u"Составляется отчет..."_s);
      WritePage(Scope(), work.Told());
    }
    CloseAndOpen(*this, Context().print_outs, kReportPage.toString());
  });
}

void ReportDialog::ShowList() {
  if (!FieldsAreSound(this)) return;
  Guarded(this, [this] {
    const ReportScope scope = Scope();
    TableReport report;
    {
      LongWork work(this, u"Составляется отчет..."_s);
      report = Table(scope, work.Told());
    }
    const auto print = [this, scope](QWidget* over) {
      LongWork work(over, u"Составляется отчет..."_s);
      WritePage(scope, work.Told());
    };
    ReportWindow(Context(), std::move(report), scope, print, this).exec();
  });
}

}  // namespace kladez
