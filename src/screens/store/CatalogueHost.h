// What a screen of the catalogue asks of the window that shows it: the main window, which stands a
// storey above and so can't be included here.
#pragma once

#include <QString>

namespace kladez {

class CatalogueHost {
 public:
  virtual ~CatalogueHost() = default;

  virtual void CloseChildScreens() = 0;
  // "Kladez - " and the name.
  virtual void SetDatabaseTitle(const QString& name) = 0;
  virtual void HideDatabaseMenus() = 0;  // "Склад", "Отчеты", "Справочники"
  virtual void DisableDatabaseCommands() = 0;  // "Закрыть", "Импорт..."
  virtual void ShowNewDatabase() = 0;          // the home screen of a Database just created
};

}  // namespace kladez
