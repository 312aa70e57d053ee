// "Импорт": picks the Database whose areas are imported into the open one.
#pragma once

#include <QDialog>

#include "ui/AppContext.h"
#include "ui/controls/Fields.h"

class QPushButton;

namespace kladez {

class CatalogueHost;
class CatalogueList;

class ImportSourceDialog : public QDialog {
  Q_OBJECT

 public:
  ImportSourceDialog(AppContext& context, CatalogueHost& host, QWidget* parent);

  void reject() override;  // "Отмена", Escape

 protected:
  void closeEvent(QCloseEvent* event) override;  // its frame

 private:
  void Choose();
  void WriteChoice();

  AppContext& context_;
  CatalogueHost& host_;

  CatalogueList* ListView1;
  TextLine* Text3;        // "Имя базы данных:"
  QPushButton* Command1;  // "Импорт"
  QPushButton* Command2;  // "Отмена"
};

}  // namespace kladez
