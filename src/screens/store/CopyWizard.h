// What the two wizards of copies share: a list of Databases with check boxes and a folder chooser,
// one of them at a time, a label that says what to do, and a copy that shows how far it is and can
// be cancelled.
#pragma once

#include <QDialog>
#include <functional>

#include "books/store/Backup.h"
#include "ui/AppContext.h"

class QBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace kladez {

class CatalogueList;
class FolderChooser;

class CopyWizard : public QDialog {
  Q_OBJECT

 public:
  void reject() override;  // cancels a running copy, else closes

 protected:
  CopyWizard(AppContext& context, const QString& name, const QString& title, QWidget* parent);

  void ShowList(const QString& label);
  void ShowChooser(const QString& label);
  bool ListIsShown() const;
  // Says so when none is checked.
  bool AnyChecked();
  // Runs a copy and closes the screen at its good end. `stopped` tells of a cancelled one.
  void Copy(const std::function<void(const Progress&)>& copy, const QString& stopped);

  virtual void Next() = 0;  // "Далее", later "OK"

  AppContext& context_;
  CatalogueList* ListView1;
  FolderChooser* chooser_;
  QPushButton* Command1;  // "Далее", "OK"
  QPushButton* Command2;  // "Отмена"

 private:
  bool ShowProgress(double done);

  QLabel* Label1;  // what to do
  QStackedLayout* steps_;
  QProgressBar* ProgressBar1;
  bool copying_ = false;
  bool cancelled_ = false;
};

}  // namespace kladez
