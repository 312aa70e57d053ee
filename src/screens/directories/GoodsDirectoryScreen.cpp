#include "screens/directories/GoodsDirectoryScreen.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QShortcut>
#include <QToolBar>
#include <algorithm>

#include "screens/directories/GoodsBrowser.h"
#include "screens/directories/GoodsForm.h"
#include "screens/directories/LoadTableDialog.h"
#include "screens/directories/PickQuestion.h"
#include "ui/HistoryCommand.h"
#include "ui/controls/Commands.h"
#include "ui/controls/FollowedFiles.h"
#include "ui/controls/Guard.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {

using namespace Qt::StringLiterals;
using look::IconName;

GoodsDirectoryScreen::GoodsDirectoryScreen(AppContext& context, QWidget* parent)
    : QWidget(parent),
      context_(context),
      browser_(new GoodsBrowser(context, u"sprTovar", {}, this)),
      unsaved_(new UnsavedWork(this, {.is_changed = [this] { return Directory().IsChanged(); },
                                      .save = [this] { return Save(&GoodsDirectory::SaveAll); }})),
      add_(NewCommand(this, u"add"_s, u"&Добавить"_s, IconName::kAdd)),
      change_(NewCommand(this, u"change"_s, u"&Изменить"_s, IconName::kChange)),
      remove_(NewCommand(this, u"remove"_s, u"&Удалить"_s, IconName::kRemove)),
      sort_(NewCommand(this, u"sort"_s, u"Сортиро&вка"_s, IconName::kSort)),
      chart_(NewCommand(this, u"chart"_s, u"Г&рафик..."_s, IconName::kChart)),
      table_(NewCommand(this, u"table"_s, u"Из табли&цы…"_s, IconName::kOpen)),
      history_(NewHistoryCommand(this, context, [this] { return browser_->ForHistory(); })),
      choose_(NewCommand(this, u"Command7"_s, u"Вы&брать"_s, IconName::kPick)),
      close_(NewCommand(this, u"Command9"_s, u"&Закрыть"_s)),
      up_(NewMove(u"up"_s, u"Порядок: вверх"_s, Qt::Key_Up, true)),
      down_(NewMove(u"down"_s, u"Порядок: вниз"_s, Qt::Key_Down, false)) {
  setObjectName(u"sprTovar"_s);
  setWindowTitle(u"Справочник товаров"_s);
  choose_->hide();
  if (Directory().ExtrasAreDamaged()) {
    AddNote(
        u"Файл kladez\\товары.usd повреждён: штрихкоды и минимумы товаров не прочитаны. "
        u"Остальное в порядке; когда Вы впишете штрихкод или минимум, файл будет записан заново."_s);
  }
  BuildLayout();
  files_ = new FollowedFiles(
      this,
      {.is_current = [this] { return Directory().IsCurrent(); },
       .is_changed = [this] { return Directory().IsChanged(); },
       .read_again =
           [this] { browser_->ShowAnew([this] { Directory().Reload(Directory().View()); }); }});
  Wire();
  ShowView();
  setFocusProxy(browser_->List());
}

GoodsDirectoryScreen::GoodsDirectoryScreen(AppContext& context, PickFor pick_for, QWidget* parent)
    : GoodsDirectoryScreen(context, parent) {
  pick_for_ = pick_for;
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  resize(look::ByLetters(this, 100, 70));
  choose_->show();
  chart_->hide();
  table_->hide();
  browser_->SelectForPick(context.settings.Read(settings::kLastPick));
}

QAction* GoodsDirectoryScreen::NewMove(const QString& name, const QString& caption, Qt::Key key,
                                       bool up) {
  auto* action = new QAction(look::Icon(up ? IconName::kUp : IconName::kDown), caption, this);
  action->setObjectName(name);
  action->setShortcut(Qt::CTRL | key);
  connect(action, &QAction::triggered, this, [this, up] { Move(up); });
  return action;
}

void GoodsDirectoryScreen::BuildLayout() {
  auto* order = new QToolBar(this);
  order->addAction(up_);
  order->addAction(down_);
  browser_->Filter()->Row()->addSpacing(look::kGrid);
  browser_->Filter()->Row()->addWidget(order);
  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addWidget(browser_, 1);
  layout->addLayout(
      NewCommandRow({add_, change_, remove_, sort_, table_, chart_, history_}, {choose_, close_}));
  TabByEye(this);
}

void GoodsDirectoryScreen::Wire() {
  connect(add_, &QPushButton::clicked, this, &GoodsDirectoryScreen::Add);
  connect(change_, &QPushButton::clicked, this, &GoodsDirectoryScreen::Change);
  connect(remove_, &QPushButton::clicked, this, &GoodsDirectoryScreen::Remove);
  connect(sort_, &QPushButton::clicked, this, &GoodsDirectoryScreen::Sort);
  connect(table_, &QPushButton::clicked, this, &GoodsDirectoryScreen::Bring);
  connect(chart_, &QPushButton::clicked, this, &GoodsDirectoryScreen::AskForChart);
  connect(choose_, &QPushButton::clicked, this, &GoodsDirectoryScreen::Choose);
  connect(close_, &QPushButton::clicked, this, &GoodsDirectoryScreen::CloseSaved);
  RecordList* list = browser_->List();
  // Adding and deleting rest with their commands while only goods are shown; changing does not.
  connect(list, &RecordList::InsertPressed, add_, &QPushButton::click);
  connect(list, &RecordList::DeletePressed, remove_, &QPushButton::click);
  connect(list, &RecordList::EnterPressed, this, &GoodsDirectoryScreen::ChangeOrChoose);
  connect(list, &RecordList::DoubleClicked, this, &GoodsDirectoryScreen::ChangeOrChoose);
  connect(browser_->Filter(), &GoodsFilter::ViewChosen, this, &GoodsDirectoryScreen::ChooseView);
  ShareListKeys(this, list);
  auto* refresh = new QShortcut(Qt::Key_F5, this);
  connect(refresh, &QShortcut::activated, this, &GoodsDirectoryScreen::Refresh);
}

GoodsDirectory& GoodsDirectoryScreen::Directory() { return browser_->Directory(); }

void GoodsDirectoryScreen::Add() {
  if (Directory().IsFull()) {
    ShowMessage(this, u"Нельзя добавлять более 1000 наименований товаров"_s);
    return;
  }
  GoodsEntry entry;
  entry.group_only = Directory().Rows().empty();
  entry.record.country = u"Россия"_s;
  entry.owner_of = [this](const QString& code) { return Directory().OwnerOfBarcode(code, {}); };
  GoodsForm form(entry, this);
  if (form.exec() != QDialog::Accepted) return;
  const int below = browser_->List()->CurrentRow();
  const int row = below < 0 ? static_cast<int>(Directory().Rows().size()) : below + 1;
  browser_->Model()->Insert(row, [&] { Directory().Insert(below, form.Record(), form.Extras()); });
  browser_->List()->SelectRow(row);
}

void GoodsDirectoryScreen::Change() {
  const std::optional<GoodsRecord> record = browser_->Selected();
  if (!record) return;
  const int before = browser_->List()->CurrentRow();
  const auto owner_of = [&](const QString& code) {
    return Directory().OwnerOfBarcode(code, record->name);
  };
  GoodsForm form({.record = *record, .extras = Directory().Extras(before), .owner_of = owner_of},
                 this);
  if (form.exec() != QDialog::Accepted) return;
  const int row = Directory().Change(before, form.Record(), form.Extras());
  if (row == before) {
    browser_->Model()->Update(row);
  } else {
    browser_->Model()->Reset();
    browser_->List()->SelectRow(row);
  }
  files_->Save([&] { Directory().SaveChange(row); });
}

void GoodsDirectoryScreen::Remove() {
  browser_->List()->setFocus();
  const std::optional<GoodsRecord> record = browser_->Selected();
  // Asked over an empty list too: that is the order in which it has always gone.
  if (!AskYesNo(this, u"Вы уверены?"_s, u"Удаление"_s, DefaultAnswer::kYes,
                record ? WhatGoes(*record) : QString())) {
    return;
  }
  if (!record) return;
  Guarded(this, [&] {
    if (!record->IsGroup() && IsOnHand(context_.data, context_.session, record->name)) {
      ShowMessage(this, u"На одном из складов присутствует данный товар.\nУдаление невозможно"_s);
      return;
    }
    const int row = browser_->List()->CurrentRow();
    browser_->Model()->Remove(row, [&] { Directory().Remove(row); });
    browser_->List()->SelectRow(std::min(row, browser_->Model()->rowCount() - 1));
  });
}

QString GoodsDirectoryScreen::WhatGoes(const GoodsRecord& record) const {
  if (record.IsGroup()) {
    return u"Группа «%1» уйдёт из справочника, её товары останутся и перейдут в группу выше."_s.arg(
        record.name.mid(1));
  }
  return u"Товар «%1» уйдёт из справочника. Накладные и прайс-листы не изменятся."_s.arg(
      record.name);
}

void GoodsDirectoryScreen::Sort() {
  browser_->ShowAnew([this] { Directory().Sort(); });
}

void GoodsDirectoryScreen::Bring() {
  if (!unsaved_->MayGo() || !LoadTable(context_, this)) return;
  browser_->ShowAnew([this] { Directory().Reload(Directory().View()); });
}

void GoodsDirectoryScreen::Move(bool up) {
  const int row = browser_->List()->CurrentRow();
  const int moved = up ? Directory().MoveUp(row) : Directory().MoveDown(row);
  if (moved == row) return;
  browser_->Model()->Update(row);
  browser_->Model()->Update(moved);
  browser_->List()->SelectRow(moved);
}

void GoodsDirectoryScreen::ChangeOrChoose() {
  if (choose_->isHidden()) {
    Change();
  } else {
    Choose();
  }
}

void GoodsDirectoryScreen::Choose() {
  if (!Save(&GoodsDirectory::SaveBeforePick)) return;
  const std::optional<GoodsRecord> record = browser_->Selected();
  if (!record) return;
  const auto pick = AskPick(this, *record, pick_for_);
  if (!pick) return;
  context_.settings.Write(settings::kLastPick, pick->name);
  emit Picked(*pick);
  close();
}

void GoodsDirectoryScreen::AskForChart() {
  const std::optional<GoodsRecord> record = browser_->Selected();
  if (record && !record->IsGroup()) emit ChartWanted(record->name);
}

void GoodsDirectoryScreen::CloseSaved() {
  // With the goods alone shown the told save leaves changed names out.
  const bool leaves_out = Directory().View() == GoodsView::kGoodsOnly;
  if (leaves_out && !unsaved_->MayGo()) return;
  if (Save(&GoodsDirectory::Save)) close();
}

bool GoodsDirectoryScreen::Save(void (GoodsDirectory::*save)()) {
  return files_->Save([=, this] { (Directory().*save)(); });
}

void GoodsDirectoryScreen::ChooseView(GoodsView view) {
  // What the rows hold now gets into the file by this switch, and is undone by the next save; or
  // it is lost with the way back.
  if (!unsaved_->MayGo()) {
    browser_->Filter()->SetView(Directory().View());
    return;
  }
  browser_->SaveWidths();
  files_->Save([&] {
    browser_->ShowAnew([&] {
      if (view == GoodsView::kGoodsOnly) {
        Directory().ShowGoodsOnly();
      } else {
        Directory().Reload(view);
      }
    });
  });
  browser_->Filter()->SetView(Directory().View());
  ShowView();
}

void GoodsDirectoryScreen::ShowView() {
  const bool groups = Directory().View() == GoodsView::kGroups;
  for (QPushButton* command : {add_, change_, remove_, sort_}) command->setEnabled(groups);
  // Goods alone keep themselves in order.
  up_->setEnabled(groups);
  down_->setEnabled(groups);
  browser_->List()->SetEmptyText(
      groups ? u"Список пуст. Нажмите «Добавить» и создайте первую группу товаров."_s
             : u"Товаров ещё нет. Выберите «Группы», чтобы добавить их."_s);
}

void GoodsDirectoryScreen::Refresh() {
  browser_->SaveWidths();
  SaveWidth(context_.settings, 6, browser_->List()->ColumnTwips().back());
  browser_->ShowAnew([] {});
}

void GoodsDirectoryScreen::closeEvent(QCloseEvent* event) {
  browser_->Filter()->Remember();
  QWidget::closeEvent(event);
}

}  // namespace kladez
