// "Создать": makes a Database and opens it at once. The list only shows what there is.
#pragma once

#include "screens/store/CatalogueForm.h"

namespace kladez {

class NewDatabaseDialog : public CatalogueForm {
  Q_OBJECT

 public:
  NewDatabaseDialog(AppContext& context, CatalogueHost& host, QWidget* parent);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void Act() override;
  std::optional<int> Position() const override;
  void LeaveEmpty() override;
};

}  // namespace kladez
