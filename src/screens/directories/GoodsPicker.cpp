#include "screens/directories/GoodsPicker.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QShowEvent>
#include <QVBoxLayout>

#include "books/directories/GoodsMarks.h"
#include "books/store/SaveSet.h"
#include "screens/directories/GoodsBrowser.h"
#include "screens/directories/PickQuestion.h"
#include "ui/Hints.h"
#include "ui/HistoryCommand.h"
#include "ui/controls/Commands.h"
#include "ui/controls/FollowedFiles.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/TabOrder.h"

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
  choose_ = NewCommand(this, u"Command7"_s, u"&Выбрать"_s, look::IconName::kPick);
  auto* cancel = NewCommand(this, u"cancel"_s, u"Отм&ена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(browser_, 1);
  auto* ending = NewEndingRow(choose_, cancel);
  if (pick_for == PickFor::kReceipt) AddStayTick(ending);
  ending->insertWidget(ending->count() - 2,
                       NewHistoryCommand(this, context, [this] { return browser_->ForHistory(); }));
  layout->addLayout(ending);
  TabByEye(this);
  resize(look::ByLetters(this, 90, 60));
  browser_->SelectForPick(context.settings.Read(settings::kLastPick));
  browser_->List()->setFocus();

  new FollowedFiles(this, {.is_current = [this] { return browser_->Directory().IsCurrent(); },
                           .is_changed = {},
                           .read_again = [this] { ReadAgain(browser_->Directory().View()); }});
  ShareListKeys(this, browser_->List());
  connect(choose_, &QPushButton::clicked, this, &GoodsPicker::Choose);
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
  const std::optional<GoodsRecord> record = browser_->Selected();
  if (!record) return;
  if (record->IsGroup() && pick_for_ == PickFor::kGoodsChart) {
    reject();
    return;
  }
  const auto pick = AskPick(this, *record, pick_for_, on_hand_);
  if (pick) Take(*pick);
  // The screen is active again, and each time it becomes so the file's marks count.
  if (isVisible()) TickAnew();
}

void GoodsPicker::Take(const GoodsPick& pick) {
  pick_ = pick;
  context_.settings.Write(settings::kLastPick, pick.name);
  emit Picked(pick);
  if (stay_ == nullptr || !stay_->isChecked()) {
    accept();
    return;
  }
  count_->setText(u"Выбрано строк: %1"_s.arg(++picks_));
  // The next goods are searched for from here.
  browser_->List()->setFocus();
}

void GoodsPicker::AddStayTick(QBoxLayout* row) {
  stay_ = new QCheckBox(u"&Не закрывать"_s, this);
  stay_->setObjectName(u"stay"_s);
  stay_->setChecked(context_.settings.ReadBool(settings::kKeepPicking));
  connect(stay_, &QCheckBox::toggled, this,
          [this](bool on) { context_.settings.WriteBool(settings::kKeepPicking, on); });
  count_ = new QLabel(this);
  count_->setObjectName(u"count"_s);
  look::MakeQuiet(count_);
  row->insertLayout(0, WithHint(stay_, HintFor(u"sprtovar2", u"Не закрывать")));
  row->insertSpacing(1, look::kGrid);
  row->insertWidget(2, count_);
}

void GoodsPicker::ChooseView(GoodsView view) {
  browser_->SaveWidths();
  if (!Guarded(this, [&] { ReadAgain(view); }))
    browser_->Filter()->SetView(browser_->Directory().View());
}

void GoodsPicker::ReadAgain(GoodsView view) {
  browser_->ShowAnew([&] {
    browser_->Directory().Reload(view);
    TickAnew();
  });
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
