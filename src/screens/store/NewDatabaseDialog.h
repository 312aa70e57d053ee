// "Создать": makes a Database and opens it at once. The list only shows what there is.
#pragma once

#include <QDialog>

#include "ui/AppContext.h"
#include "ui/controls/Fields.h"

class QPushButton;

namespace kladez {

class CatalogueHost;
class CatalogueList;

class NewDatabaseDialog : public QDialog {
  Q_OBJECT

 public:
  NewDatabaseDialog(AppContext& context, CatalogueHost& host, QWidget* parent);

  void reject() override;  // "Отмена", Escape

 protected:
  void closeEvent(QCloseEvent* event) override;  // its frame

 private:
  void Create();

  AppContext& context_;
  CatalogueHost& host_;

  CatalogueList* ListView1;
  TextLine* Text3;        // "Имя базы данных:"
  QPushButton* Command1;  // "Создать"
  QPushButton* Command2;  // "Отмена"
};

}  // namespace kladez
