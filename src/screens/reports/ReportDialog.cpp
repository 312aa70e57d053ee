#include "screens/reports/ReportDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "screens/printing/CloseAndShow.h"
#include "ui/controls/DateField.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/Look.h"

namespace kladez {

using namespace Qt::StringLiterals;

ReportDialog::ReportDialog(AppContext& context, const ReportForm& form, QWidget* parent)
    : PeriodDialog(context, form.texts, parent), form_(form) {
  BuildPeriod();
  QWidget* last = warehouse_;
  for (QWidget* next :
       std::initializer_list<QWidget*>{all_, current_month_, range_, from_, to_, yes_, no_}) {
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

  auto* days = new QHBoxLayout;
  days->setSpacing(look::kGrid);
  for (QWidget* part : std::initializer_list<QWidget*>{range_, from_, to_label, to_}) {
    days->addWidget(part);
  }
  days->addStretch();
  auto* layout = new QVBoxLayout(Frame());
  look::SetDialogMargins(layout);
  layout->addWidget(all_);
  layout->addWidget(current_month_);
  layout->addLayout(days);

  const auto enable = [this, to_label](bool on) {
    for (QWidget* part : std::initializer_list<QWidget*>{from_, to_label, to_})
      part->setEnabled(on);
  };
  enable(false);
  connect(range_, &QRadioButton::toggled, this, enable);
}

ReportScope ReportDialog::Scope() const {
  const PeriodKind kind = range_->isChecked()           ? PeriodKind::kRange
                          : current_month_->isChecked() ? PeriodKind::kCurrentMonth
                                                        : PeriodKind::kAll;
  return {Warehouse(), {kind, Context().clock.Today(), from_->date(), to_->date()}};
}

void ReportDialog::Ok() {
  if (!FieldsAreSound(this)) return;
  Guarded(this, [this] {
    {
      LongWork work(this, u"Составляется отчет..."_s);
      form_.make(Context(), Scope(), work.Told());
    }
    CloseAndOpen(*this, Context().print_outs, kReportPage.toString());
  });
}

}  // namespace kladez
