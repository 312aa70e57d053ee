// Several Databases behind the screens of the catalogue, with what stands for the main window.
#pragma once

#include "ScreenDriver.h"
#include "books/store/Catalogue.h"
#include "screens/store/CatalogueDialog.h"
#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"

namespace kladez {

// Stands for the main window and keeps what it was asked, in order.
class NotedHost : public CatalogueHost {
 public:
  void CloseChildScreens() override { calls.append(u"CloseChildScreens"_s); }
  void SetDatabaseTitle(const QString& name) override { calls.append(u"Title "_s + name); }
  void HideDatabaseMenus() override { calls.append(u"HideDatabaseMenus"_s); }
  void DisableDatabaseCommands() override { calls.append(u"DisableDatabaseCommands"_s); }
  void ShowNewDatabase() override { calls.append(u"ShowNewDatabase"_s); }

  QStringList calls;
};

class CatalogueScreens : public testing::Test {
 protected:
  const DataDir& Data() { return world_.Temp().Data(); }
  Session& CurrentSession() { return world_.CurrentSession(); }
  QString Setting(const struct Setting& setting) { return world_.Settings().Read(setting); }
  std::map<std::string, std::string> Tree() { return world_.Temp().Tree(); }

  void Create(const QStringList& names) {
    for (const QString& name : names) CreateDatabase(Data(), name);
  }
  bool Run(CatalogueDialog::Mode mode) {
    return CatalogueDialog(world_.Context(), host_, mode, nullptr).exec() == QDialog::Accepted;
  }
  static ModalAnswers::Step On(const std::function<void(CatalogueDialog*)>& act) {
    return [=](QWidget* dialog) { act(qobject_cast<CatalogueDialog*>(dialog)); };
  }

  ScreenWorld world_;
  NotedHost host_;
};

inline void SelectRow(QWidget* screen, int row) {
  Find<CatalogueList>(screen, "ListView1")->SelectRow(row);
}

}  // namespace kladez
