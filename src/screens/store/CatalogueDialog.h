// The catalogue of Databases. What it opened last and the role that it was opened with live in the
// session; they change only by an opening that went through.
#pragma once

#include <QDialog>

#include "ui/AppContext.h"
#include "ui/controls/Fields.h"

class QComboBox;
class QPushButton;

namespace kladez {

class CatalogueHost;
class CatalogueList;

class CatalogueDialog : public QDialog {
  Q_OBJECT

 public:
  enum class Mode { kCatalogue, kOpen };
  // Accepted when a Database was chosen: OpenDatabase is due.
  CatalogueDialog(AppContext& context, CatalogueHost& host, Mode mode, QWidget* parent);

  void reject() override;  // "Отмена", Escape

 protected:
  void closeEvent(QCloseEvent* event) override;  // its frame

 private:
  void BuildLayout(Mode mode);
  void Wire();
  void Fill();
  void Open();
  UserRole Role() const;  // as it is chosen on the screen
  bool MayEnter();
  void Rename();
  void Delete();
  void Create();
  void WriteChoice(int position);

  AppContext& context_;
  CatalogueHost& host_;

  CatalogueList* list_;
  TextLine* name_;       // "Имя базы данных:"
  QComboBox* role_;      // "Пользователь:"
  QPushButton* open_;    // "Открыть"
  QPushButton* cancel_;  // "Отмена"
  QPushButton* rename_;  // "Изменить"
  QPushButton* delete_;  // "Удалить"
  QPushButton* create_;  // "Создать"
};

}  // namespace kladez
