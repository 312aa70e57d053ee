#include "shell/MainMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <array>

#include "books/store/SettingsStore.h"
#include "ui/base/Colours.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct CommandRow {
  QStringView menu;
  Command command;
  QStringView name;
  QStringView caption;
  bool separator_above = false;
};

constexpr auto kCommands = std::to_array<CommandRow>({
    {u"mnuFile", Command::kCreate, u"mnuFileCreate", u"&Создать..."},
    {u"mnuFile", Command::kOpen, u"mnuFileOpen", u"&Открыть..."},
    {u"mnuFile", Command::kCatalogue, u"mnubases", u"&Базы данных..."},
    {u"mnuFile", Command::kImport, u"mnuimp", u"&Импорт...", true},
    {u"mnuFile", Command::kBackup, u"arch", u"&Резервное копирование...", true},
    {u"mnuFile", Command::kRestore, u"reparch", u"&Восстановить..."},
    {u"mnuFile", Command::kClose, u"mnuFileClose", u"&Закрыть", true},
    {u"mnuFile", Command::kExit, u"mnuFileExit", u"В&ыход"},
    {u"mnuFile", Command::kCheck, u"mnuCheck", u"&Проверка базы…", true},
    {u"mnuFile", Command::kTimeMachine, u"mnuTimeMachine", u"&Машина времени…"},
    {u"mnuFile", Command::kUndo, u"mnuUndo", u"О&тменить"},
    {u"mnuFile", Command::kLoadTable, u"mnuLoadTable", u"За&грузить таблицу…", true},
    {u"mnuFile", Command::kSaveTable, u"mnuSaveTable", u"Сохранить список &как таблицу…"},
    {u"mnHelp", Command::kHelp, u"mnuHelp", u"&Справка по Kladez 4.8..."},
    {u"mnHelp", Command::kProductPage, u"mnWeb", u"&Kladez в Интернете", true},
    {u"mnHelp", Command::kNewsPage, u"mnNews", u"&Новости Kladez"},
    {u"mnHelp", Command::kAbout, u"mnAbout", u"&О программе...", true},
});

}  // namespace

MainMenu::MainMenu(QMenuBar* bar, QObject* parent) : QObject(parent) {
  file_menu_ = AddMenu(bar, u"mnuFile"_s, u"&Файл"_s);
  AddCommands(file_menu_, u"mnuFile");
  connect(file_menu_, &QMenu::aboutToShow, this, &MainMenu::FileMenuOpens);
  ShowUndo({});
  store_menu_ = AddMenu(bar, u"mnu_Sklad"_s, u"&Склад"_s);
  reports_menu_ = AddMenu(bar, u"mnu_Otchet"_s, u"&Отчеты"_s);
  directories_menu_ = AddMenu(bar, u"mnu_Sprav"_s, u"С&правочники"_s);
  AddPlaces(store_menu_, PlaceGroup::kStore);
  store_menu_->addSeparator();
  AddPlaces(store_menu_, PlaceGroup::kMoreStore);
  AddPlaces(reports_menu_, PlaceGroup::kReports);
  reports_menu_->addSeparator();
  AddPlaces(reports_menu_, PlaceGroup::kMoreReports);
  AddPlaces(directories_menu_, PlaceGroup::kDirectories);
  AddCommands(AddMenu(bar, u"mnHelp"_s, u"Спр&авка"_s), u"mnHelp");
  commands_[Command::kHelp]->setShortcut(Qt::Key_F1);
  // Elsewhere a desktop would move these two to a menu of its own.
  commands_[Command::kExit]->setMenuRole(QAction::NoRole);
  commands_[Command::kAbout]->setMenuRole(QAction::NoRole);
}

QMenu* MainMenu::AddMenu(QMenuBar* bar, const QString& name, const QString& caption) {
  QMenu* menu = bar->addMenu(caption);
  menu->setObjectName(name);
  return menu;
}

void MainMenu::AddCommands(QMenu* menu, QStringView name) {
  for (const CommandRow& row : kCommands) {
    if (row.menu != name) continue;
    if (row.separator_above) menu->addSeparator();
    QAction* action = menu->addAction(row.caption.toString());
    action->setObjectName(row.name.toString());
    connect(action, &QAction::triggered, this,
            [this, command = row.command] { emit Commanded(command); });
    commands_[row.command] = action;
  }
}

void MainMenu::OfferSchemes(SettingsStore& settings) {
  struct SchemeRow {
    look::Scheme scheme;
    QStringView name;
    QStringView caption;
  };
  static constexpr SchemeRow kRows[] = {
      {look::Scheme::kSystem, u"scheme_system", u"&Как в системе"},
      {look::Scheme::kLight, u"scheme_light", u"&Светлое"},
      {look::Scheme::kDark, u"scheme_dark", u"&Тёмное"},
  };
  file_menu_->addSeparator();
  QMenu* choice = file_menu_->addMenu(u"О&формление"_s);
  choice->setObjectName(u"scheme"_s);
  auto* group = new QActionGroup(this);
  const int chosen = settings.ReadInt(settings::kScheme);
  for (const SchemeRow& row : kRows) {
    QAction* action = choice->addAction(row.caption.toString());
    action->setObjectName(row.name.toString());
    action->setCheckable(true);
    group->addAction(action);
    const int number = static_cast<int>(row.scheme);
    connect(action, &QAction::triggered, this, [&settings, &row, number] {
      look::UseScheme(row.scheme);
      settings.Write(settings::kScheme, QString::number(number));
    });
    if (number == chosen || row.scheme == look::Scheme::kSystem) {
      action->setChecked(true);
      look::UseScheme(row.scheme);
    }
  }
}

void MainMenu::AddPlaces(QMenu* menu, PlaceGroup group) {
  for (const PlaceRow& row : Places()) {
    if (row.group != group) continue;
    QAction* action = menu->addAction(row.caption.toString());
    action->setObjectName(row.menu.toString());
    connect(action, &QAction::triggered, this, [this, place = row.place] { emit Chosen(place); });
    places_[row.place] = action;
  }
}

void MainMenu::ShowDatabaseMenus(bool show) {
  for (QMenu* menu : {store_menu_, reports_menu_, directories_menu_})
    menu->menuAction()->setVisible(show);
}

void MainMenu::EnableDatabaseCommands(bool enable) {
  commands_[Command::kImport]->setEnabled(enable);
  commands_[Command::kClose]->setEnabled(enable);
  commands_[Command::kCheck]->setEnabled(enable);
  commands_[Command::kLoadTable]->setEnabled(enable);
  commands_[Command::kSaveTable]->setEnabled(enable);
}

void MainMenu::ShowUndo(const QString& what) {
  QAction* undo = commands_[Command::kUndo];
  const QString shown = QString(what).replace(u'&', u"&&"_s);
  undo->setText(what.isEmpty() ? u"О&тменить"_s : u"О&тменить: "_s + shown);
  undo->setEnabled(!what.isEmpty());
}

void MainMenu::ApplyRole(bool seller) {
  for (const PlaceRow& row : Places()) {
    if (row.barred) places_[row.place]->setEnabled(!seller);
  }
  reports_menu_->menuAction()->setEnabled(!seller);
  directories_menu_->menuAction()->setEnabled(!seller);
}

}  // namespace kladez
