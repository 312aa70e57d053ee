// The catalogue of Databases. It stays loaded for the whole run: its list "Пользователь:" is the
// role of the session, and what it opened last is the session's chosen_base.
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
  CatalogueDialog(AppContext& context, CatalogueHost& host, QWidget* parent);

  enum class Mode { kCatalogue, kOpen };
  // Shows it modally; true when a Database was chosen, and OpenDatabase is due.
  bool Run(Mode mode);

  void reject() override;  // "Отмена", Escape

 protected:
  void closeEvent(QCloseEvent* event) override;  // its frame

 private:
  void Fill();
  void Open();
  bool MayEnter();
  void Rename();
  void Delete();
  void Create();
  void WriteChoice(int position);

  AppContext& context_;
  CatalogueHost& host_;

  CatalogueList* ListView1;
  TextLine* Text3;           // "Имя базы данных:"
  QComboBox* Combo1;         // "Пользователь:"
  QPushButton* Command1;     // "Открыть"
  QPushButton* Command2;     // "Отмена"
  QPushButton* GoldButton1;  // "Изменить"
  QPushButton* GoldButton2;  // "Удалить"
  QPushButton* GoldButton3;  // "Создать"
  QPushButton* Command3;     // "Справка"
};

}  // namespace kladez
