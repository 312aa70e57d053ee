// "Импорт": picks the areas of the source Database and copies them over those of the open one.
#pragma once

#include <QDialog>
#include <array>

#include "books/store/Import.h"
#include "ui/AppContext.h"

class QCheckBox;
class QPushButton;

namespace kladez {

class HintPicture;

class ImportDialog : public QDialog {
  Q_OBJECT

 public:
  // `source` is the path of the source Database, "0002\".
  ImportDialog(AppContext& context, const QString& source, QWidget* parent);

 private:
  void ShowChoice();
  void Copy();

  AppContext& context_;
  QString Text1;  // the source
  ImportChoice choice_;

  std::array<QCheckBox*, kImportAreas> boxes_;  // Check1 to Check9, in the order of the areas
  HintPicture* Picture5;
  QPushButton* Command1;  // "OK"
  QPushButton* Command2;  // "Отмена"
  QPushButton* Command3;  // "Справка"
};

}  // namespace kladez
