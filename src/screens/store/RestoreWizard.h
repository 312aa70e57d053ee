// "Восстановление": brings Databases of a backup folder back as new ones.
#pragma once

#include "screens/store/CopyWizard.h"

namespace kladez {

class RestoreWizard : public CopyWizard {
  Q_OBJECT

 public:
  RestoreWizard(AppContext& context, QWidget* parent);

 private:
  void Next() override;
};

}  // namespace kladez
