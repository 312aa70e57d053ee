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

 public:
  DocumentRegisterScreen(AppContext& context, DocumentKind kind, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildList();
  QLayout* NewCommands();
  bool HasWarehouse() const;
  void Rebuild();
  void Edit(DocumentDraft draft, int row);
  void TellHidden(const DocumentDraft& saved);
  void ShowHidden();
  void Add();
  void Change();
  void Delete();
  void View();
  enum class Deletion { kNone, kOnly, kWithReversal };
  Deletion AskDeletion(const RegisterRow& row);
  DocumentDraft::Place PlaceOfNew() const;

  AppContext& context_;
  const DocumentScreens& screens_;
  DocumentRegister rows_;
  RegisterFilterPanel* filter_;
  QLabel* status_;       // "Документов:2     Сумма:10.50"
  QLabel* hidden_note_;  // a document was saved that the filter hides
  QString hidden_file_;
  QDate hidden_date_;

  RecordList* list_;
  QPushButton* add_;                // "Добавить"
  QPushButton* change_;             // "Изменить"
  QPushButton* remove_;             // "Удалить"
  QPushButton* close_;              // "Закрыть"
  QPushButton* view_;               // "Просмотр"
  QPushButton* journal_ = nullptr;  // "Печать журнала"
};

}  // namespace kladez
