#include "screens/reports/ChartDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "formats/Numbers.h"
#include "screens/directories/GoodsPicker.h"
#include "screens/reports/ChartWindow.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/PeriodLists.h"

namespace kladez {

using namespace Qt::StringLiterals;

ChartDialog::ChartDialog(AppContext& context, const ChartForm& form, const QString& goods,
                         QWidget* parent)
    : PeriodDialog(context, form.texts, parent), form_(form) {
  QWidget* last = warehouse_;
  if (form.asks_goods) last = BuildGoods(goods);
  BuildPeriod();
  AddTwin(this, form.build_twin.toString(), yes_);
  AddTwin(this, form.close_twin.toString(), no_);
  for (QWidget* next :
       std::initializer_list<QWidget*>{by_year_, by_month_, year_, month_, yes_, no_}) {
    setTabOrder(last, next);
    last = next;
  }
  (goods_ != nullptr && goods.isEmpty() ? static_cast<QWidget*>(goods_) : warehouse_)->setFocus();
}

QWidget* ChartDialog::BuildGoods(const QString& goods) {
  goods_ = new TextLine(this);
  goods_->setObjectName(u"Text1"_s);
  goods_->setText(goods);
  pick_ = NewCommand(this, u"Command3"_s, u"В&ыбрать..."_s, look::IconName::kGoods);
  auto* field = new QHBoxLayout;
  field->setSpacing(look::kGrid);
  field->addWidget(goods_, 1);
  field->addWidget(pick_);
  Fields()->addWidget(NewLabel(u"&Товар"_s, goods_, this), 1, 0);
  Fields()->addLayout(field, 1, 1);
  Fields()->addWidget(new HintPicture(HintFor(form_.texts.name, u"Товар"), {goods_, pick_}, this),
                      1, 2);
  connect(pick_, &QPushButton::clicked, this, &ChartDialog::PickGoods);
  setTabOrder(warehouse_, goods_);
  setTabOrder(goods_, pick_);
  return pick_;
}

void ChartDialog::BuildPeriod() {
  by_year_ = new QRadioButton(u"За &год"_s, Frame());
  by_year_->setObjectName(u"Option1"_s);
  by_month_ = new QRadioButton(u"За &месяц"_s, Frame());
  by_month_->setObjectName(u"Option2"_s);
  const QDate today = Context().clock.Today();
  year_ = new TextChoice(YearsAround(today.year()), Frame());
  year_->setObjectName(u"Combo2"_s);
  year_->setAccessibleName(u"Год"_s);
  year_->Choose(QString::number(today.year()));
  month_ = new TextChoice(MonthNames(), Frame());
  month_->setObjectName(u"Combo3"_s);
  month_->setAccessibleName(u"Месяц"_s);
  month_->setCurrentIndex(today.month() - 1);

  auto* grid = new QGridLayout(Frame());
  look::SetDialogMargins(grid);
  grid->setHorizontalSpacing(look::kMargin);
  grid->addWidget(by_year_, 0, 0);
  grid->addWidget(year_, 0, 1);
  grid->addWidget(by_month_, 1, 0);
  grid->addWidget(month_, 1, 1);
  grid->setColumnStretch(2, 1);
  // A month is one of the chosen year.
  connect(by_month_, &QRadioButton::toggled, month_, &QWidget::setEnabled);
  by_year_->setChecked(true);
  month_->setEnabled(false);
}

void ChartDialog::PickGoods() {
  Guarded(this, [this] {
    GoodsPicker picker(Context(), PickFor::kGoodsChart, this);
    picker.exec();
    if (picker.Pick()) goods_->setText(picker.Pick()->name);
  });
}

QString ChartDialog::Goods() const { return goods_ != nullptr ? goods_->text() : QString(); }

ChartScope ChartDialog::Scope() const {
  return {.warehouse = Warehouse(),
          .by_day = by_month_->isChecked(),
          .year = static_cast<int>(NumberOr(year_->Chosen())),
          .month = month_->currentIndex() + 1,
          .today = Context().clock.Today()};
}

void ChartDialog::Ok() {
  if (form_.asks_goods && Goods().isEmpty()) {
    ShowInformation(this, u"Выбирите товар"_s, u"Ошибка"_s);
    goods_->setFocus();
    return;
  }
  Guarded(this, [this] {
    ChartGrid grid;
    {
      LongWork work(this, u"Строится график..."_s);
      grid = form_.collect(Context().data, Context().session, Goods(), Scope(), work.Told());
    }
    accept();
    ChartWindow(Context(), grid, parentWidget()).exec();
  });
}

}  // namespace kladez
