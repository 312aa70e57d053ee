// The register of receipts, shipments or transfers: one child screen for the three, told apart by
// the table of DocumentScreens.
#pragma once

#include <QWidget>

#include "books/stock/DocumentRegister.h"
#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace kladez {

class RecordList;
class RegisterFilterPanel;

class DocumentRegisterScreen : public QWidget {
  Q_OBJECT

 protected:
  DocumentRegisterScreen(AppContext& context, DocumentKind kind, QWidget* parent);

  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildList();
  QLayout* NewCommands();
  bool HasWarehouse() const;
  void Rebuild();
  void Edit(DocumentDraft draft, int row);
  void Add();
  void Change();
  void Delete();
  void View();
  bool AskDeletion(const RegisterRow& row, bool* reverse);
  DocumentDraft::Place ThePlace() const;

  AppContext& context_;
  const DocumentScreens& screens_;
  DocumentRegister rows_;
  RegisterFilterPanel* filter_;
  QLabel* status_;  // "Документов:2     Сумма:10.50"

  RecordList* ListView1;
  QPushButton* Command1;            // "Добавить"
  QPushButton* Command2;            // "Изменить"
  QPushButton* Command3;            // "Удалить"
  QPushButton* Command7;            // "Закрыть"
  QPushButton* Command8;            // "Просмотр"
  QPushButton* Command9 = nullptr;  // "Печать журнала"
};

}  // namespace kladez
