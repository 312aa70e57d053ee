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
  // `folder` is the setting that keeps the folder used last.
  CopyWizard(AppContext& context, const QString& name, const QString& title, const Setting& folder,
             QWidget* parent);

  void ShowList(const QString& label);
  void ShowChooser(const QString& label);
  bool ListIsShown() const;
  // Says so when none is checked.
  bool AnyChecked();
  // Runs a copy and closes the screen at its good end. `stopped` tells of a cancelled one.
  void Copy(const std::function<void(const Progress&)>& copy, const QString& stopped);

  virtual void Next() = 0;  // "Далее", later "OK"

  AppContext& context_;
  CatalogueList* list_;
  FolderChooser* chooser_;
  QPushButton* next_;    // "Далее", "OK"
  QPushButton* cancel_;  // "Отмена"

 private:
  bool ShowProgress(double done);

  QLabel* advice_;  // what to do
  QStackedLayout* steps_;
  QProgressBar* progress_;
  const Setting folder_;
  bool copying_ = false;
  bool cancelled_ = false;
};

}  // namespace kladez
