// The register of receipts, shipments or transfers: one child screen for the three, told apart by
// the table of DocumentScreens.
#pragma once

#include <QWidget>
#include <optional>

#include "books/stock/DocumentGoods.h"
#include "books/stock/DocumentRegister.h"
#include "books/stock/RegisterView.h"
#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QTimer;

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
  void BuildFoot(QBoxLayout* layout);
  QLayout* NewCommands();
  bool HasWarehouse() const;
  void Rebuild();
  void Search();
  void SearchGoods();
  void SortBy(int column);
  void ShowRows();
  QString EmptyText() const;
  void ShowSelection();
  void FollowLink(const QString& link);
  void Load();
  void ReadAgain();
  void Edit(DocumentDraft draft, int row);
  void TellHidden(const DocumentDraft& saved);
  void Add();
  void Change();
  void Copy();
  void Delete();
  void View();
  enum class Deletion { kNone, kOnly, kWithReversal };
  Deletion AskDeletion(const RegisterRow& row);
  DocumentDraft::Place PlaceOfNew() const;

  AppContext& context_;
  const DocumentScreens& screens_;
  DocumentRegister rows_;
  RegisterView shown_;                  // of rows_
  std::optional<DocumentGoods> goods_;  // of the rows, once somebody searches
  bool goods_left_out_ = false;         // their reading was cancelled
  bool was_descending_ = false;
  bool loaded_ = false;
  RegisterFilterPanel* filter_;
  QTimer* pause_;        // in the typing of a search, before the goods are read
  QLabel* status_;       // "Документов:2     Сумма:10.50"
  QLabel* selection_;    // what the selected rows come to
  QLabel* search_note_;  // nothing was found, or goods were left out
  QLabel* hidden_note_;  // a document was saved that the filter hides
  QString hidden_file_;
  QDate hidden_date_;

  RecordList* list_;
  QPushButton* add_;                // "Добавить"
  QPushButton* change_;             // "Изменить"
  QPushButton* remove_;             // "Удалить"
  QPushButton* copy_;               // "Копия"
  QPushButton* close_;              // "Закрыть"
  QPushButton* view_;               // "Просмотр"
  QPushButton* journal_ = nullptr;  // "Печать журнала"
};

}  // namespace kladez
