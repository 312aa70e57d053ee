#include "screens/store/NewDatabaseDialog.h"

#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {

using namespace Qt::StringLiterals;

NewDatabaseDialog::NewDatabaseDialog(AppContext& context, CatalogueHost& host, QWidget* parent)
    : CatalogueForm(context, host,
                    {.name = u"BasesNew"_s,
                     .title = u"Создать"_s,
                     .caption = u"&Имя базы данных:"_s,
                     .command = u"&Создать"_s,
                     .empty = u"Баз данных ещё нет. Введите имя первой."_s},
                    &RowAtPosition, parent) {
  name_->setFocus();
}

void NewDatabaseDialog::Act() {
  if (name_->text().isEmpty()) {
    name_->setFocus();
    return;
  }
  Guarded(this, [this] {
    if (!MayLeave()) return;
    const QString name = name_->text();
    // Made first: where that fails, the open screen stays.
    const QString base = CreateDatabase(context_.data, name);
    host_.CloseChildScreens();
    // The other lists and the currency keep the rows of the Database open before until the next
    // OpenDatabase.
    context_.session.warehouses = QStringList{u"Главный склад"_s};
    context_.session.base_path = context_.session.chosen_base = base;
    context_.settings.Write(settings::kBaseName, base);
    context_.settings.Write(settings::kBaseTitle, name);
    context_.settings.Write(settings::kFilePos, QString::number(list_->Count()));
    host_.SetDatabaseTitle(name);
    accept();
    host_.ShowNewDatabase();
  });
}

void NewDatabaseDialog::closeEvent(QCloseEvent* event) {
  if (list_->Count() == 0) LeaveEmpty();
  CatalogueForm::closeEvent(event);
}

std::optional<int> NewDatabaseDialog::Position() const { return list_->Count(); }

void NewDatabaseDialog::LeaveEmpty() { host_.HideDatabaseMenus(); }

}  // namespace kladez
