#include "screens/store/CatalogueDialog.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QFormLayout>
#include <QTimer>
#include <QVBoxLayout>

#include "books/store/DirectorPassword.h"
#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "ui/Help.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// In twips; the wider list covers the side buttons.
constexpr int kListWidth = 4875;
constexpr int kWideListWidth = 6135;

// Whoever tries one password after the other gets no further than one a second. What is typed
// meanwhile comes afterwards.
void WaitASecond() {
  QEventLoop wait;
  QTimer::singleShot(1000, &wait, &QEventLoop::quit);
  wait.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

CatalogueDialog::CatalogueDialog(AppContext& context, CatalogueHost& host, Mode mode,
                                 QWidget* parent)
    : QDialog(parent),
      context_(context),
      host_(host),
      list_(new CatalogueList(this)),
      name_(new TextLine(this)),
      role_(new QComboBox(this)),
      open_(NewCommand(this, u"Command1"_s, u"&Открыть"_s)),
      cancel_(NewCommand(this, u"Command2"_s, u"О&тмена"_s)),
      rename_(NewCommand(this, u"GoldButton1"_s, u"&Изменить"_s, look::IconName::kChange)),
      delete_(NewCommand(this, u"GoldButton2"_s, u"&Удалить"_s, look::IconName::kRemove)),
      create_(NewCommand(this, u"GoldButton3"_s, u"&Создать"_s, look::IconName::kAdd)) {
  setObjectName(u"Bases"_s);
  setWindowTitle(mode == Mode::kOpen ? u"Открыть"_s : u"Kladez"_s);
  name_->setObjectName(u"Text3"_s);
  name_->setReadOnly(true);
  role_->setObjectName(u"Combo1"_s);
  role_->addItems({u"Продавец"_s, u"Директор"_s});
  role_->setPlaceholderText(u"не выбран"_s);
  role_->setCurrentIndex(static_cast<int>(context.session.role));
  BuildLayout(mode);
  Wire();
  Guarded(this, [this] { Fill(); });
  list_->setFocus();
}

void CatalogueDialog::BuildLayout(Mode mode) {
  const bool open = mode == Mode::kOpen;
  list_->setFixedWidth(look::FromTwips(open ? kWideListWidth : kListWidth));
  list_->SetEmptyText(open ? u"Нет ни одной базы данных."_s
                           : u"Нет ни одной базы данных. Нажмите «Создать»."_s);
  auto* side = new QVBoxLayout;
  for (QPushButton* button : {create_, rename_, delete_}) {
    side->addWidget(button);
    button->setVisible(!open);
  }
  side->addStretch();
  auto* top = new QHBoxLayout;
  top->addWidget(list_);
  top->addLayout(side);
  top->addStretch();
  auto* fields = new QFormLayout;
  fields->addRow(u"И&мя базы данных:"_s, name_);
  fields->addRow(u"По&льзователь:"_s, role_);
  fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  auto* ending = NewEndingRow(open_, cancel_);
  ending->insertWidget(0, NewHelpCommand(this, context_.data, u"Command3"));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(top, 1);
  layout->addLayout(fields);
  layout->addSpacing(look::kGrid);
  layout->addLayout(ending);
  TabByEye(this);
}

void CatalogueDialog::Wire() {
  list_->ShowNameIn(name_);
  connect(list_, &RecordList::DoubleClicked, this, &CatalogueDialog::Open);
  connect(list_, &RecordList::EnterPressed, this, &CatalogueDialog::Open);
  connect(open_, &QPushButton::clicked, this, &CatalogueDialog::Open);
  connect(cancel_, &QPushButton::clicked, this, &CatalogueDialog::reject);
  connect(rename_, &QPushButton::clicked, this, &CatalogueDialog::Rename);
  connect(delete_, &QPushButton::clicked, this, &CatalogueDialog::Delete);
  connect(create_, &QPushButton::clicked, this, &CatalogueDialog::Create);
}

void CatalogueDialog::Fill() {
  list_->Fill(context_.data);
  const bool any = list_->Count() > 0;
  for (QWidget* control : std::initializer_list<QWidget*>{rename_, delete_, open_, role_}) {
    control->setEnabled(any);
  }
  list_->SelectRow(RowAtPosition(context_.settings.ReadInt(settings::kFilePos), list_->Count()));
}

void CatalogueDialog::WriteChoice(int position) {
  context_.settings.Write(settings::kRole, QString::number(role_->currentIndex()));
  // Without a selected row the position of before stays.
  if (position > 0) context_.settings.Write(settings::kFilePos, QString::number(position));
}

UserRole CatalogueDialog::Role() const { return static_cast<UserRole>(role_->currentIndex()); }

bool CatalogueDialog::MayEnter() {
  if (Role() != UserRole::kDirector) return true;
  const QString line = ReadPasswordLine(context_.data);
  if (line.isEmpty()) return true;
  const QString answer =
      AskText(this, u"Пароль"_s, u"Введите пароль для входа в базу данных"_s).value_or(QString());
  if (answer.isEmpty()) return false;
  if (!IsPassword(line, answer)) {
    WaitASecond();
    ShowMessage(this, u"Пароль введен не верно"_s);
    return false;
  }
  return true;
}

void CatalogueDialog::Open() {
  Guarded(this, [this] {
    if (!list_->HasSelection()) return;
    const CatalogueEntry entry = list_->Selected();
    RequirePlainPath(context_.data, entry);
    if (!MayEnter() || !MayLeave()) return;
    context_.session.chosen_base = entry.descriptor.path;
    context_.session.role = Role();
    host_.CloseChildScreens();
    context_.settings.Write(settings::kBaseName, context_.session.chosen_base);
    context_.settings.Write(settings::kBaseTitle, name_->text());
    WriteChoice(list_->CurrentRow() + 1);
    accept();
    host_.SetDatabaseTitle(entry.descriptor.name);
  });
}

void CatalogueDialog::reject() {
  hide();
  if (list_->Count() == 0) {
    host_.DisableDatabaseCommands();
    host_.HideDatabaseMenus();
    context_.session.chosen_base.clear();
  }
  if (!context_.session.IsOpen()) context_.session.chosen_base.clear();
  done(Rejected);
}

void CatalogueDialog::closeEvent(QCloseEvent* event) {
  if (list_->Count() == 0) {
    host_.HideDatabaseMenus();
    context_.settings.Write(settings::kBaseName, context_.session.chosen_base);
    context_.session.chosen_base.clear();
  }
  WriteChoice(list_->CurrentRow() + 1);
  event->accept();
  done(Rejected);
}

void CatalogueDialog::Rename() {
  Guarded(this, [this] {
    const CatalogueEntry entry = list_->Selected();
    if (IsInUse(context_.data, context_.session, entry)) {
      ShowInformation(this, u"Изменение невозможно, т.к. база данных используется."_s);
      return;
    }
    const QString name =
        AskText(this, u"Переименовать"_s, u"Введите новое имя для базы: "_s + entry.descriptor.name,
                entry.descriptor.name)
            .value_or(QString());
    if (!name.isEmpty()) {
      RenameDatabase(context_.data, entry, name);
      Fill();
    }
    list_->setFocus();
  });
}

void CatalogueDialog::Delete() {
  Guarded(this, [this] {
    const CatalogueEntry entry = list_->Selected();
    if (IsInUse(context_.data, context_.session, entry)) {
      ShowInformation(this, u"Удаление невозможно, т.к. база данных используется."_s);
      return;
    }
    if (AskYesNo(this, u"Вы уверены?"_s, u"Удаление базы"_s, DefaultAnswer::kNo,
                 u"База «%1» и все её файлы будут удалены с диска навсегда."_s.arg(
                     entry.descriptor.name))) {
      DeleteDatabase(context_.data, entry);
      Fill();
    }
    list_->setFocus();
  });
}

void CatalogueDialog::Create() {
  Guarded(this, [this] {
    const QString name =
        AskText(this, u"Создать базу"_s, u"Введите имя новой базы:"_s, u"Новая база"_s)
            .value_or(QString());
    if (!name.isEmpty()) {
      CreateDatabase(context_.data, name);
      WriteChoice(list_->Count() + 1);  // the row that it is about to have
      Fill();
    }
    list_->setFocus();
  });
}

}  // namespace kladez
