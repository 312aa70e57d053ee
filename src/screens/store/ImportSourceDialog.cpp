#include "screens/store/ImportSourceDialog.h"

#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "screens/store/ImportDialog.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {

using namespace Qt::StringLiterals;

ImportSourceDialog::ImportSourceDialog(AppContext& context, CatalogueHost& host, QWidget* parent)
    : CatalogueForm(context, host,
                    {.name = u"BasesImport"_s,
                     .title = u"Импорт"_s,
                     .caption = u"И&мя базы данных:"_s,
                     .command = u"&Импорт"_s,
                     .empty = u"Нет ни одной базы данных."_s},
                    &ImportRowAtPosition, parent) {
  name_->setReadOnly(true);
  connect(list_, &RecordList::DoubleClicked, this, [this] { Act(); });
  connect(list_, &RecordList::EnterPressed, this, [this] { Act(); });
  list_->setFocus();
}

void ImportSourceDialog::Act() {
  Guarded(this, [this] {
    if (!list_->HasSelection()) return;
    const CatalogueEntry entry = list_->Selected();
    if (entry.descriptor.path == context_.session.base_path) {
      ShowMessage(this, u"Нельзя импортировать базу саму в себя"_s);
      return;
    }
    RequirePlainPath(context_.data, entry);
    if (!MayLeave()) return;
    WriteChoice();
    hide();
    done(ImportDialog(context_, entry.descriptor.path, parentWidget()).exec());
  });
}

std::optional<int> ImportSourceDialog::Position() const {
  return list_->HasSelection() ? std::optional(list_->CurrentRow() + 1) : std::nullopt;
}

void ImportSourceDialog::LeaveEmpty() {
  context_.session.chosen_base.clear();
  host_.HideDatabaseMenus();
}

}  // namespace kladez
