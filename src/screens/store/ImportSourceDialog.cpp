#include "screens/store/ImportSourceDialog.h"

#include <QCloseEvent>

#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "screens/store/ImportDialog.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

ImportSourceDialog::ImportSourceDialog(AppContext& context, CatalogueHost& host, QWidget* parent)
    : QDialog(parent),
      context_(context),
      host_(host),
      ListView1(new CatalogueList(this)),
      Text3(new TextLine(this)),
      Command1(NewCommand(this, u"Command1"_s, u"&Импорт"_s)),
      Command2(NewCommand(this, u"Command2"_s, u"О&тмена"_s)) {
  setObjectName(u"BasesImport"_s);
  setWindowTitle(u"Импорт"_s);
  Text3->setObjectName(u"Text3"_s);
  Text3->setReadOnly(true);
  ListView1->SetEmptyText(u"Нет ни одной базы данных."_s);
  ListView1->LayOut(this, u"И&мя базы данных:"_s, Text3, Command1, Command2);
  ListView1->ShowNameIn(Text3);
  connect(ListView1, &RecordList::DoubleClicked, this, &ImportSourceDialog::Choose);
  connect(ListView1, &RecordList::EnterPressed, this, &ImportSourceDialog::Choose);
  connect(Command1, &QPushButton::clicked, this, &ImportSourceDialog::Choose);
  connect(Command2, &QPushButton::clicked, this, &ImportSourceDialog::reject);
  Guarded(this, [this] { ListView1->Fill(context_.data); });
  ListView1->SelectRow(
      ImportRowAtPosition(context_.settings.ReadInt(settings::kFilePos), ListView1->Count()));
  ListView1->setFocus();
}

void ImportSourceDialog::Choose() {
  Guarded(this, [this] {
    if (!ListView1->HasSelection()) return;
    const CatalogueEntry entry = ListView1->Selected();
    if (entry.descriptor.path == context_.session.base_path) {
      ShowMessage(this, u"Нельзя импортировать базу саму в себя"_s);
      return;
    }
    RequirePlainPath(context_.data, entry);
    WriteChoice();
    accept();
    ImportDialog(context_, entry.descriptor.path, parentWidget()).exec();
  });
}

void ImportSourceDialog::WriteChoice() {
  context_.settings.Write(settings::kRole,
                          QString::number(static_cast<int>(context_.session.role)));
  if (!ListView1->HasSelection()) return;
  context_.settings.Write(settings::kFilePos, QString::number(ListView1->CurrentRow() + 1));
}

void ImportSourceDialog::reject() {
  if (ListView1->Count() == 0) {
    context_.session.chosen_base.clear();
    host_.HideDatabaseMenus();
  }
  done(Rejected);
}

void ImportSourceDialog::closeEvent(QCloseEvent* event) {
  WriteChoice();
  event->accept();
  done(Rejected);
}

}  // namespace kladez
