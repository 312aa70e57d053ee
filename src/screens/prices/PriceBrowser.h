// A price list on the screen, as `Price` edits it and `price2` picks from it: the two are one
// machinery, told apart by the commands that they show. The rows are a working copy; what is not
// saved by a command is lost, except the ticks, which are saved on leaving too.
#pragma once

#include <QPointer>
#include <QWidget>

#include "books/prices/PriceStore.h"
#include "screens/directories/GoodsFilter.h"
#include "ui/AppContext.h"

class QComboBox;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace kladez {

class GoodsDirectoryScreen;

enum class PriceUse { kEditor, kPicker };

class PriceBrowser : public QWidget {
  Q_OBJECT

 public:
  PriceBrowser(AppContext& context, PriceUse kind, QWidget* parent);

  // Chooses a warehouse and shows its first list. A list that can't be read is told in a message
  // and leaves the screen empty.
  void ChooseWarehouse(const QString& warehouse);
  // Saves the ticks and the chosen view, as every way out does.
  void Leave();

  QComboBox* Combo1;  // "Склад:"
  QComboBox* Combo2;  // "Прайс:"
  RecordList* ListView1;
  // A command that the screen does not have is null.
  QPushButton* GoldButton1 = nullptr;  // "Добавить"
  QPushButton* GoldButton2 = nullptr;  // "Удалить"
  QPushButton* Command2 = nullptr;     // "Изменить"
  QPushButton* Command3 = nullptr;     // "Закрыть", of the picker "Отмена"
  QPushButton* Command5 = nullptr;     // "Сохранить"
  QPushButton* Command6 = nullptr;     // "Выбрать"
  QPushButton* Command7 = nullptr;     // "Копировать"
  QPushButton* Command8 = nullptr;     // "Вставить"
  QPushButton* Command9 = nullptr;     // "Печать"
  QPushButton* Command10 = nullptr;    // "Обновить"

 signals:
  void Picked(const GoodsPick& pick);
  void CloseAsked();

 private:
  enum class Place { kLeft, kRight, kPanel };
  struct Command;
  static std::vector<Command> CommandsOf(PriceUse kind);
  void BuildPanel(QVBoxLayout* layout);
  void BuildList();
  void AddCommands(QLayout* row, Place place);

  bool RefusedToSeller();
  void ListLists();
  void Load();
  void ShowRows(const QString& selected_name);
  QString SelectedName() const;
  void SwitchView(GoodsView view);

  void Add();
  void InsertPicked(const GoodsPick& pick);
  void Remove();
  void Change();
  void ChangeOrPick();
  void Pick();
  void Copy();
  void Paste();
  void Print();
  void Save();

  AppContext& context_;
  const PriceUse kind_;
  const Session session_;  // of the Database that it was opened on, which it leaves last
  const PriceStore store_;
  GoodsFilter* filter_;
  RecordModel* model_;
  PriceList list_;
  bool loaded_ = false;  // without a list nothing is saved, least of all no ticks
  QPointer<GoodsDirectoryScreen> goods_;
};

}  // namespace kladez
