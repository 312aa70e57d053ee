// The main window: menu, left panel, strip, and one child screen at a time. It starts the session,
// opens and closes Databases, and stays until the end of the run.
#pragma once

#include <QMainWindow>
#include <functional>

#include "screens/store/CatalogueDialog.h"
#include "screens/store/CatalogueHost.h"
#include "shell/MainMenu.h"
#include "shell/Places.h"
#include "ui/AppContext.h"
#include "ui/controls/DialogsFirst.h"
#include "ui/controls/RememberedSizes.h"

namespace kladez {

class ChildHost;
class FootLine;
class LinksPanel;
class LinksStrip;

class MainWindow : public QMainWindow, public CatalogueHost {
  Q_OBJECT

 public:
  explicit MainWindow(AppContext& context);
  ~MainWindow() override;

  // The start: title window, catalogue, the Database that was open last.
  void Start(int splash_milliseconds = 2000);
  // Opens the Database that the session's chosen_base names, or shows the landing screen.
  void OpenDatabase();

  void CloseChildScreens() override;
  void SetDatabaseTitle(const QString& name) override;
  void HideDatabaseMenus() override;
  void DisableDatabaseCommands() override;
  void ShowNewDatabase() override;

  QWidget* Child() const;  // nullptr where no screen is shown

 protected:
  void closeEvent(QCloseEvent* event) override;  // its frame

 private:
  void BuildLayout();
  bool MustWait(const std::function<void()>& command);
  void Go(Place place);
  void Do(Command command);
  void OpenFromCatalogue(CatalogueDialog::Mode mode);
  void Create();
  void OpenDemonstration();
  void CloseDatabase();
  void Undo();
  void OpenTimeMachine();
  void Exit();

  void ShowPanels(bool show);
  void ShowHome();
  void ShowLanding();
  void Return();
  void AskOfCopies();
  void ShowFoot();

  AppContext& context_;
  MainMenu* menu_;
  LinksPanel* links_panel_;
  LinksStrip* links_strip_;
  ChildHost* children_;
  FootLine* foot_;
  DialogsFirst dialogs_first_;
  RememberedSizes remembered_sizes_;
};

}  // namespace kladez
