// What the catalogue screens ask of the main window that they stand above.
#pragma once

#include <QString>

namespace kladez {

class CatalogueHost {
 public:
  virtual ~CatalogueHost() = default;

  virtual void CloseChildScreens() = 0;
  // "Kladez - " and the name; "Kladez" without one.
  virtual void SetDatabaseTitle(const QString& name) = 0;
  virtual void HideDatabaseMenus() = 0;  // "Склад", "Отчеты", "Справочники"
  virtual void DisableDatabaseCommands() = 0;  // "Закрыть", "Импорт..."
  virtual void ShowNewDatabase() = 0;          // the home screen of a Database just created
};

}  // namespace kladez
