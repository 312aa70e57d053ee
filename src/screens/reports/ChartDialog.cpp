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
  QWidget* last = Combo1;
  if (form.asks_goods) last = BuildGoods(goods);
  BuildPeriod();
  AddTwin(this, form.build_twin.toString(), Command1);
  AddTwin(this, form.close_twin.toString(), Command2);
  for (QWidget* next :
       std::initializer_list<QWidget*>{Option1, Option2, Combo2, Combo3, Command1, Command2}) {
    setTabOrder(last, next);
    last = next;
  }
  (Text1 != nullptr && goods.isEmpty() ? static_cast<QWidget*>(Text1) : Combo1)->setFocus();
}

QWidget* ChartDialog::BuildGoods(const QString& goods) {
  Text1 = new TextLine(this);
  Text1->setObjectName(u"Text1"_s);
  Text1->setText(goods);
  Command3 = NewCommand(this, u"Command3"_s, u"В&ыбрать..."_s, look::IconName::kGoods);
  auto* field = new QHBoxLayout;
  field->setSpacing(look::kGrid);
  field->addWidget(Text1, 1);
  field->addWidget(Command3);
  Fields()->addWidget(NewLabel(u"&Товар"_s, Text1, this), 1, 0);
  Fields()->addLayout(field, 1, 1);
  Fields()->addWidget(new HintPicture(HintFor(form_.texts.name, u"Товар"), {Text1, Command3}, this),
                      1, 2);
  connect(Command3, &QPushButton::clicked, this, &ChartDialog::PickGoods);
  setTabOrder(Combo1, Text1);
  setTabOrder(Text1, Command3);
  return Command3;
}

void ChartDialog::BuildPeriod() {
  Option1 = new QRadioButton(u"За &год"_s, Frame());
  Option1->setObjectName(u"Option1"_s);
  Option2 = new QRadioButton(u"За &месяц"_s, Frame());
  Option2->setObjectName(u"Option2"_s);
  const QDate today = Context().clock.Today();
  Combo2 = new TextChoice(YearsAround(today.year()), Frame());
  Combo2->setObjectName(u"Combo2"_s);
  Combo2->setAccessibleName(u"Год"_s);
  Combo2->Choose(QString::number(today.year()));
  Combo3 = new TextChoice(MonthNames(), Frame());
  Combo3->setObjectName(u"Combo3"_s);
  Combo3->setAccessibleName(u"Месяц"_s);
  Combo3->setCurrentIndex(today.month() - 1);

  auto* grid = new QGridLayout(Frame());
  look::SetDialogMargins(grid);
  grid->setHorizontalSpacing(look::kMargin);
  grid->addWidget(Option1, 0, 0);
  grid->addWidget(Combo2, 0, 1);
  grid->addWidget(Option2, 1, 0);
  grid->addWidget(Combo3, 1, 1);
  grid->setColumnStretch(2, 1);
  // A month is one of the chosen year.
  connect(Option2, &QRadioButton::toggled, Combo3, &QWidget::setEnabled);
  Option1->setChecked(true);
  Combo3->setEnabled(false);
}

void ChartDialog::PickGoods() {
  Guarded(this, [this] {
    GoodsPicker picker(Context(), PickFor::kGoodsChart, this);
    picker.exec();
    if (picker.Pick()) Text1->setText(picker.Pick()->name);
  });
}

QString ChartDialog::Goods() const { return Text1 != nullptr ? Text1->text() : QString(); }

ChartScope ChartDialog::Scope() const {
  return {.warehouse = Warehouse(),
          .by_day = Option2->isChecked(),
          .year = static_cast<int>(NumberOr(Combo2->Chosen())),
          .month = Combo3->currentIndex() + 1};
}

void ChartDialog::Ok() {
  if (form_.asks_goods && Goods().isEmpty()) {
    ShowInformation(this, u"Выбирите товар"_s, u"Ошибка"_s);
    Text1->setFocus();
    return;
  }
  Guarded(this, [this] {
    std::optional<ChartGrid> grid;
    {
      LongWork work(this, u"Строится график..."_s);
      grid = form_.collect(Context().data, Context().session, Goods(), Scope(), work.Callback());
    }
    if (!grid) return;
    accept();
    ChartWindow(Context(), *grid, parentWidget()).exec();
  });
}

}  // namespace kladez
