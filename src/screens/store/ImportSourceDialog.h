// "Импорт": picks the Database whose areas are imported into the open one, and goes on to the
// choice of the areas. Accepted when an import ran.
#pragma once

#include "screens/store/CatalogueForm.h"

namespace kladez {

class ImportSourceDialog : public CatalogueForm {
  Q_OBJECT

 public:
  ImportSourceDialog(AppContext& context, CatalogueHost& host, QWidget* parent);

 protected:
  void Act() override;
  std::optional<int> Position() const override;
  void LeaveEmpty() override;
};

}  // namespace kladez
