#include "screens/reports/PeriodDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "books/reports/ReportScope.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Choice.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Forms.h"

namespace kladez {

using namespace Qt::StringLiterals;

PeriodDialog::PeriodDialog(AppContext& context, const PeriodTexts& texts, QWidget* parent)
    : QDialog(parent), context_(context) {
  setObjectName(texts.name.toString());
  setWindowTitle(texts.caption.toString());
  warehouse_ =
      new TextChoice(context.session.warehouses + QStringList{kAllWarehouses.toString()}, this);
  warehouse_->setObjectName(u"Combo1"_s);
  BoundByLetters(warehouse_, 28);
  warehouse_->setCurrentIndex(warehouse_->count() - 1);
  auto* hint = new HintPicture(HintFor(texts.name, u"Склад"), {warehouse_}, this);
  hint->setObjectName(u"Picture5"_s);
  fields_ = new QGridLayout;
  fields_->setSpacing(look::kGrid);
  fields_->setColumnStretch(1, 1);
  fields_->addWidget(NewLabel(u"С&клад:"_s, warehouse_, this), 0, 0);
  fields_->addWidget(warehouse_, 0, 1);
  fields_->addWidget(hint, 0, 2);
  frame_ = NewFrame();

  yes_ = NewCommand(this, u"Command1"_s, texts.yes.toString());
  no_ = NewCommand(this, u"Command2"_s, texts.no.toString());
  ending_ = NewEndingRow(yes_, no_);
  ending_->insertWidget(0, NewHelpCommand(this, context_.data));

  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(fields_);
  layout->addSpacing(look::kGrid);
  layout->addWidget(frame_);
  layout->addStretch();
  layout->addSpacing(look::kGrid);
  layout->addLayout(ending_);
  setMinimumWidth(look::ByLetters(this, 56));

  connect(yes_, &QPushButton::clicked, this, [this] { Ok(); });
  connect(no_, &QPushButton::clicked, this, &QDialog::reject);
}

QGroupBox* PeriodDialog::NewFrame() {
  // The question mark stands in the blanks before the word.
  auto* frame = new QGroupBox(u"     Документы"_s, this);
  frame->setObjectName(u"Frame1"_s);
  auto* hint = new HintPicture(HintFor(objectName(), u"Документы"), {frame}, frame);
  hint->setObjectName(u"Picture1"_s);
  hint->setFixedSize(look::kMargin, look::kMargin);
  hint->move(0, look::kTight / 2);
  return frame;
}

void PeriodDialog::AddCommand(QPushButton* command) {
  ending_->insertWidget(ending_->indexOf(yes_), command);
}

QString PeriodDialog::Warehouse() const { return warehouse_->Chosen(); }

}  // namespace kladez
