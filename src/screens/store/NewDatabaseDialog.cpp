#include "screens/store/NewDatabaseDialog.h"

#include <QCloseEvent>

#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

NewDatabaseDialog::NewDatabaseDialog(AppContext& context, CatalogueHost& host, QWidget* parent)
    : QDialog(parent),
      context_(context),
      host_(host),
      ListView1(new CatalogueList(this)),
      Text3(new TextLine(this)),
      Command1(NewCommand(this, u"Command1"_s, u"&Создать"_s)),
      Command2(NewCommand(this, u"Command2"_s, u"О&тмена"_s)) {
  setObjectName(u"BasesNew"_s);
  setWindowTitle(u"Создать"_s);
  Text3->setObjectName(u"Text3"_s);
  ListView1->SetEmptyText(u"Баз данных ещё нет. Введите имя первой."_s);
  ListView1->LayOut(this, u"&Имя базы данных:"_s, Text3, Command1, Command2);
  ListView1->ShowNameIn(Text3);
  connect(Command1, &QPushButton::clicked, this, &NewDatabaseDialog::Create);
  connect(Command2, &QPushButton::clicked, this, &NewDatabaseDialog::reject);
  Guarded(this, [this] { ListView1->Fill(context_.data); });
  ListView1->SelectRow(
      RowAtPosition(context_.settings.ReadInt(settings::kFilePos), ListView1->Count()));
  Text3->setFocus();
}

void NewDatabaseDialog::Create() {
  if (Text3->text().isEmpty()) {
    Text3->setFocus();
    return;
  }
  Guarded(this, [this] {
    const QString name = Text3->text();
    // Made first: where that fails, the open screen stays.
    const QString base = CreateDatabase(context_.data, name);
    host_.CloseChildScreens();
    // The other lists and the currency keep the rows of the Database open before, and the
    // catalogue keeps its choice, until the next OpenDatabase.
    context_.session.warehouses = QStringList{u"Главный склад"_s};
    context_.session.base_path = base;
    context_.settings.Write(settings::kBaseName, base);
    context_.settings.Write(settings::kBaseTitle, name);
    context_.settings.Write(settings::kFilePos, QString::number(ListView1->Count()));
    host_.SetDatabaseTitle(name);
    accept();
    host_.ShowNewDatabase();
  });
}

void NewDatabaseDialog::reject() {
  if (ListView1->Count() == 0) host_.HideDatabaseMenus();
  done(Rejected);
}

void NewDatabaseDialog::closeEvent(QCloseEvent* event) {
  context_.settings.Write(settings::kRole,
                          QString::number(static_cast<int>(context_.session.role)));
  context_.settings.Write(settings::kFilePos, QString::number(ListView1->Count()));
  if (ListView1->Count() == 0) host_.HideDatabaseMenus();
  event->accept();
  done(Rejected);
}

}  // namespace kladez
