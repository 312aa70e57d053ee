#include "screens/directories/GoodsPicker.h"

#include <QShowEvent>
#include <QVBoxLayout>

#include "books/directories/GoodsMarks.h"
#include "books/store/SaveSet.h"
#include "screens/directories/GoodsBrowser.h"
#include "screens/directories/PickQuestion.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

GoodsPicker::GoodsPicker(AppContext& context, PickFor pick_for, QWidget* parent)
    : QDialog(parent), context_(context), pick_for_(pick_for) {
  setObjectName(u"sprtovar2"_s);
  setWindowTitle(u"Справочник товаров"_s);
  browser_ = new GoodsBrowser(
      context, u"sprtovar2",
      {.checked = [this](int row) { return row < int(ticks_.size()) && ticks_[row]; },
       .set_checked = [this](int row, bool on) { ticks_[row] = on; }},
      this);
  Command7 = NewCommand(this, u"Command7"_s, u"&Выбрать"_s, look::IconName::kPick);
  auto* cancel = NewCommand(this, u"cancel"_s, u"Отм&ена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(browser_, 1);
  layout->addLayout(NewEndingRow(Command7, cancel));
  resize(90 * look::kGrid, 60 * look::kGrid);
  browser_->List()->setFocus();

  ShareListKeys(this, browser_->List());
  connect(Command7, &QPushButton::clicked, this, &GoodsPicker::Choose);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(browser_->List(), &RecordList::EnterPressed, this, &GoodsPicker::Choose);
  connect(browser_->List(), &RecordList::DoubleClicked, this, &GoodsPicker::Choose);
  connect(browser_->Filter(), &GoodsFilter::ViewChosen, this, &GoodsPicker::ChooseView);
}

void GoodsPicker::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) TickAnew();
}

void GoodsPicker::TickAnew() {
  ticks_ =
      TickRows(browser_->Directory().Rows(), ReadMarks(context_.data, context_.session, marks_));
  browser_->List()->viewport()->update();
}

void GoodsPicker::Choose() {
  const GoodsRecord* record = browser_->Selected();
  if (record == nullptr) return;
  if (record->IsGroup() && pick_for_ == PickFor::kGoodsChart) {
    reject();
    return;
  }
  pick_ = AskPick(this, *record, pick_for_);
  if (pick_) {
    accept();
  } else {
    // The screen is active again, and each time it becomes so the file's marks count.
    TickAnew();
  }
}

void GoodsPicker::ChooseView(GoodsView view) {
  browser_->SaveWidths();
  const bool good = Guarded(this, [&] {
    browser_->ShowAnew([&] {
      browser_->Directory().Reload(view);
      TickAnew();
    });
  });
  if (!good) browser_->Filter()->SetView(browser_->Directory().View());
}

void GoodsPicker::done(int result) {
  // A medium that can't be written must not keep the user in the picker.
  Guarded(this, [this] {
    SaveSet save(context_.data);
    save.Write(MarksPath(context_.session), WriteMarks(browser_->Directory().Rows(), ticks_),
               marks_);
    save.Commit();
  });
  browser_->Filter()->Remember();
  QDialog::done(result);
}

}  // namespace kladez
