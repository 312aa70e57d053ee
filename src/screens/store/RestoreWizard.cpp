#include "screens/store/RestoreWizard.h"

#include <QPushButton>

#include "screens/store/CatalogueList.h"
#include "screens/store/FolderChooser.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

RestoreWizard::RestoreWizard(AppContext& context, QWidget* parent)
    : CopyWizard(context, u"resrep"_s, u"Восстановление"_s, settings::kRestoreFolder, parent) {
  ShowChooser(u"Выбрите папку, в которую Вы ранее скопировали базы данных"_s);
  const auto look = [this] { next_->setEnabled(IsBackupFolder(chooser_->Folder())); };
  connect(chooser_, &FolderChooser::FolderChanged, this, look);
  look();
}

void RestoreWizard::Next() {
  if (!ListIsShown()) {
    Guarded(this, [this] {
      list_->Fill(DataDir(chooser_->Folder()));
      next_->setText(u"OK"_s);
      ShowList(u"Выбирите базы данных, которые необходимо восстановить"_s);
    });
    return;
  }
  if (!AnyChecked()) return;
  Copy(
      [this](const Progress& progress) {
        RestoreDatabases(context_.data, DataDir(chooser_->Folder()), list_->Checked(), progress);
      },
      u"Восстановление прервано. Базы, восстановленные до этого, остались в списке баз данных."_s);
}

}  // namespace kladez
