// "Резервное корирование": copies chosen Databases into a dated folder of any drive.
#pragma once

#include "screens/store/CopyWizard.h"

namespace kladez {

class BackupWizard : public CopyWizard {
  Q_OBJECT

 public:
  BackupWizard(AppContext& context, QWidget* parent);

  int exec() override;

 private:
  void Next() override;
};

}  // namespace kladez
