// "Восстановление": brings Databases of a backup folder back as new ones.
#pragma once

#include "screens/store/CopyWizard.h"

namespace kladez {

class resrep : public CopyWizard {
  Q_OBJECT

 public:
  resrep(AppContext& context, QWidget* parent);

 private:
  void Next() override;
};

}  // namespace kladez
