// The menus of the main window, from one table, and what of them is shown and enabled.
#pragma once

#include <QObject>
#include <map>

#include "shell/Places.h"

class QAction;
class QMenu;
class QMenuBar;

namespace kladez {

class SettingsStore;

enum class Command {
  kCreate,
  kOpen,
  kCatalogue,
  kImport,
  kBackup,
  kRestore,
  kClose,
  kExit,
  kCheck,
  kUndo,
  kTimeMachine,
  kLoadTable,
  kSaveTable,
  kHelp,
  kProductPage,
  kNewsPage,
  kAbout,
};

class MainMenu : public QObject {
  Q_OBJECT

 public:
  // Names of menus and entries are the told ones: "mnu_Sklad", "mnu_Sklad_P".
  MainMenu(QMenuBar* bar, QObject* parent);

  void ShowDatabaseMenus(bool show);  // "Склад", "Отчеты", "Справочники"
  void EnableDatabaseCommands(bool enable);  // "Импорт...", "Закрыть", "Проверка базы…", "Загрузить
                                             // таблицу…", "Сохранить список…"
  // What the seller may not do is greyed; everything else is enabled.
  void ApplyRole(bool seller);
  // The choice "Оформление", at the end of "Файл"; the stored one holds from now on.
  void OfferSchemes(SettingsStore& settings);
  // "Отменить: накладная 48 удалена"; an empty text where there is nothing to undo.
  void ShowUndo(const QString& what);

 signals:
  void FileMenuOpens();
  void Chosen(Place place);
  void Commanded(Command command);

 private:
  QMenu* AddMenu(QMenuBar* bar, const QString& name, const QString& caption);
  void AddCommands(QMenu* menu, QStringView name);
  void AddPlaces(QMenu* menu, PlaceGroup group);

  QMenu* file_menu_;
  QMenu* store_menu_;
  QMenu* reports_menu_;
  QMenu* directories_menu_;
  std::map<Command, QAction*> commands_;
  std::map<Place, QAction*> places_;
};

}  // namespace kladez
