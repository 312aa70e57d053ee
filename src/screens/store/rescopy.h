// "Резервное корирование": copies chosen Databases into a dated folder of any drive.
#pragma once

#include "screens/store/CopyWizard.h"

namespace kladez {

class rescopy : public CopyWizard {
  Q_OBJECT

 public:
  rescopy(AppContext& context, QWidget* parent);

  int exec() override;

 private:
  void Next() override;
};

}  // namespace kladez
