#include "screens/store/CatalogueDialog.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "ui/Help.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// In twips; the wider list covers the side buttons.
constexpr int kListWidth = 4875;
constexpr int kWideListWidth = 6135;

}  // namespace

CatalogueDialog::CatalogueDialog(AppContext& context, CatalogueHost& host, QWidget* parent)
    : QDialog(parent),
      context_(context),
      host_(host),
      ListView1(new CatalogueList(this)),
      Text3(new TextLine(this)),
      Combo1(new QComboBox(this)),
      Command1(NewCommand(this, u"Command1"_s, u"&Открыть"_s)),
      Command2(NewCommand(this, u"Command2"_s, u"О&тмена"_s)),
      GoldButton1(NewCommand(this, u"GoldButton1"_s, u"&Изменить"_s, look::IconName::kChange)),
      GoldButton2(NewCommand(this, u"GoldButton2"_s, u"&Удалить"_s, look::IconName::kRemove)),
      GoldButton3(NewCommand(this, u"GoldButton3"_s, u"&Создать"_s, look::IconName::kAdd)),
      Command3(NewHelpCommand(this, context.data, u"workdb.htm", u"Command3")) {
  setObjectName(u"Bases"_s);
  Text3->setObjectName(u"Text3"_s);
  Text3->setReadOnly(true);
  Combo1->setObjectName(u"Combo1"_s);
  Combo1->addItems({u"Продавец"_s, u"Директор"_s});
  Combo1->setCurrentIndex(-1);
  Combo1->setPlaceholderText(u"не выбран"_s);

  auto* side = new QVBoxLayout;
  for (QPushButton* button : {GoldButton3, GoldButton1, GoldButton2}) side->addWidget(button);
  side->addStretch();
  auto* top = new QHBoxLayout;
  top->addWidget(ListView1);
  top->addLayout(side);
  top->addStretch();
  auto* fields = new QFormLayout;
  fields->addRow(u"И&мя базы данных:"_s, Text3);
  fields->addRow(u"По&льзователь:"_s, Combo1);
  fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  auto* ending = NewEndingRow(Command1, Command2);
  ending->insertWidget(0, Command3);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(top, 1);
  layout->addLayout(fields);
  layout->addSpacing(look::kGrid);
  layout->addLayout(ending);

  ListView1->ShowNameIn(Text3);
  connect(ListView1, &RecordList::DoubleClicked, this, &CatalogueDialog::Open);
  connect(ListView1, &RecordList::EnterPressed, this, &CatalogueDialog::Open);
  connect(Combo1, &QComboBox::currentIndexChanged, this,
          [this](int index) { context_.session.role = static_cast<UserRole>(index); });
  connect(Command1, &QPushButton::clicked, this, &CatalogueDialog::Open);
  connect(Command2, &QPushButton::clicked, this, &CatalogueDialog::reject);
  connect(GoldButton1, &QPushButton::clicked, this, &CatalogueDialog::Rename);
  connect(GoldButton2, &QPushButton::clicked, this, &CatalogueDialog::Delete);
  connect(GoldButton3, &QPushButton::clicked, this, &CatalogueDialog::Create);
}

bool CatalogueDialog::Run(Mode mode) {
  const bool open = mode == Mode::kOpen;
  setWindowTitle(open ? u"Открыть"_s : u"Kladez"_s);
  ListView1->setFixedWidth(look::FromTwips(open ? kWideListWidth : kListWidth));
  for (QPushButton* button : {GoldButton1, GoldButton2, GoldButton3}) button->setVisible(!open);
  ListView1->SetEmptyText(open ? u"Нет ни одной базы данных."_s
                               : u"Нет ни одной базы данных. Нажмите «Создать»."_s);
  adjustSize();
  Guarded(this, [this] { Fill(); });
  ListView1->setFocus();
  return exec() == Accepted;
}

void CatalogueDialog::Fill() {
  ListView1->Fill(context_.data);
  const bool any = ListView1->Count() > 0;
  for (QWidget* control :
       std::initializer_list<QWidget*>{GoldButton1, GoldButton2, Command1, Combo1}) {
    control->setEnabled(any);
  }
  ListView1->SelectRow(
      RowAtPosition(context_.settings.ReadInt(settings::kFilePos), ListView1->Count()));
}

void CatalogueDialog::WriteChoice(int position) {
  context_.settings.Write(settings::kRole, QString::number(Combo1->currentIndex()));
  // Without a selected row the position of before stays.
  if (position > 0) context_.settings.Write(settings::kFilePos, QString::number(position));
}

bool CatalogueDialog::MayEnter() {
  const QString password = DirectorPassword(context_.data);
  if (password.isEmpty() || context_.session.role != UserRole::kDirector) return true;
  const QString answer =
      AskText(this, u"Пароль"_s, u"Введите пароль для входа в базу данных"_s).value_or(QString());
  if (answer.isEmpty()) return false;
  if (answer != password) {
    ShowMessage(this, u"Пароль введен не верно"_s);
    return false;
  }
  return true;
}

void CatalogueDialog::Open() {
  Guarded(this, [this] {
    if (!ListView1->HasSelection()) return;
    const CatalogueEntry entry = ListView1->Selected();
    RequirePlainPath(context_.data, entry);
    if (!MayEnter()) return;
    context_.session.chosen_base = entry.descriptor.path;
    host_.CloseChildScreens();
    context_.settings.Write(settings::kBaseName, context_.session.chosen_base);
    context_.settings.Write(settings::kBaseTitle, Text3->text());
    WriteChoice(ListView1->CurrentRow() + 1);
    accept();
    host_.SetDatabaseTitle(entry.descriptor.name);
  });
}

void CatalogueDialog::reject() {
  hide();
  if (ListView1->Count() == 0) {
    host_.DisableDatabaseCommands();
    host_.HideDatabaseMenus();
    context_.session.chosen_base.clear();
  }
  if (!context_.session.IsOpen()) context_.session.chosen_base.clear();
  done(Rejected);
}

void CatalogueDialog::closeEvent(QCloseEvent* event) {
  if (ListView1->Count() == 0) {
    host_.HideDatabaseMenus();
    context_.settings.Write(settings::kBaseName, context_.session.chosen_base);
    context_.session.chosen_base.clear();
  }
  WriteChoice(ListView1->CurrentRow() + 1);
  event->accept();
  done(Rejected);
}

void CatalogueDialog::Rename() {
  Guarded(this, [this] {
    const CatalogueEntry entry = ListView1->Selected();
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
    ListView1->setFocus();
  });
}

void CatalogueDialog::Delete() {
  Guarded(this, [this] {
    const CatalogueEntry entry = ListView1->Selected();
    if (IsInUse(context_.data, context_.session, entry)) {
      ShowInformation(this, u"Удаление невозможно, т.к. база данных используется."_s);
      return;
    }
    if (AskYesNo(this, u"Вы уверены?"_s, u"Удаление базы"_s)) {
      DeleteDatabase(context_.data, entry);
      Fill();
    }
    ListView1->setFocus();
  });
}

void CatalogueDialog::Create() {
  Guarded(this, [this] {
    const QString name =
        AskText(this, u"Создать базу"_s, u"Введите имя новой базы:"_s, u"Новая база"_s)
            .value_or(QString());
    if (!name.isEmpty()) {
      CreateDatabase(context_.data, name);
      WriteChoice(ListView1->Count() + 1);  // the row that it is about to have
      Fill();
    }
    ListView1->setFocus();
  });
}

}  // namespace kladez
