#include "screens/store/BackupWizard.h"

#include <QPushButton>

#include "screens/store/CatalogueList.h"
#include "screens/store/FolderChooser.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

BackupWizard::BackupWizard(AppContext& context, QWidget* parent)
    : CopyWizard(context, u"rescopy"_s, u"Резервное корирование"_s, settings::kBackupFolder,
                 parent) {
  Guarded(this, [this] { list_->Fill(context_.data); });
  ShowList(u"Отметьте галочками те базы данных, которые необходимо копировать."_s);
  if (list_->Count() == 0) {
    ShowMessage(parent, u"У вас нет ни одной базы данных, чтобы копировать ее."_s);
  }
}

void BackupWizard::Next() {
  if (ListIsShown()) {
    if (!AnyChecked()) return;
    Guarded(this, [this] {
      for (const CatalogueEntry& entry : list_->Checked()) {
        RequirePlainPath(context_.data, entry);
      }
      next_->setText(u"OK"_s);
      ShowChooser(u"Выбирите папку, куда необходимо скопировать базы данных"_s);
    });
    return;
  }
  if (chooser_->Folder().isEmpty()) {
    ShowMessage(this, u"Такой папки нет. Выберите её в дереве или напишите полный путь к ней."_s);
    return;
  }
  Copy(
      [this](const Progress& progress) {
        MakeBackup(context_.data, list_->Checked(), chooser_->Folder(), context_.clock.Today(),
                   progress);
      },
      u"Копирование прервано, незаконченная копия удалена."_s);
}

}  // namespace kladez
