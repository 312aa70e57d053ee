// "Импорт": picks the areas of the source Database and copies them over those of the open one.
#pragma once

#include <QDialog>
#include <array>

#include "books/store/Import.h"
#include "ui/AppContext.h"

class QCheckBox;

namespace kladez {

class ImportDialog : public QDialog {
  Q_OBJECT

 public:
  // `source` is the path of the source Database, "0002\".
  ImportDialog(AppContext& context, const QString& source, QWidget* parent);

 private:
  void ShowChoice();
  void Copy();

  AppContext& context_;
  const QString source_;  // path of the source Database
  ImportChoice choice_;

  std::array<QCheckBox*, kImportAreas> boxes_;  // Check1 to Check9, in the order of the areas
};

}  // namespace kladez
