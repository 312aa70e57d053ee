// "Резервное корирование": copies chosen Databases into a dated folder of any drive.
#pragma once

#include "screens/store/CopyWizard.h"

namespace kladez {

class BackupWizard : public CopyWizard {
  Q_OBJECT

 public:
  // Says so when there is nothing to back up.
  BackupWizard(AppContext& context, QWidget* parent);

 private:
  void Next() override;
};

}  // namespace kladez
