// A price list on the screen, as `Price` edits it and `price2` picks from it: the two are one
// machinery, told apart by the commands that they show. The rows are a working copy; what no
// command has saved is asked about on the way out, except the ticks, which are saved then.
#pragma once

#include <QPointer>
#include <QWidget>

#include "books/prices/PriceStore.h"
#include "books/stock/LineNotes.h"
#include "screens/directories/GoodsFilter.h"
#include "ui/AppContext.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace kladez {

class FollowedFiles;
class GoodsDirectoryScreen;
class UnsavedWork;

enum class PriceUse { kEditor, kPicker };

class PriceBrowser : public QWidget {
  Q_OBJECT

 public:
  PriceBrowser(AppContext& context, PriceUse use, QWidget* parent);

  // Chooses a warehouse and shows its first list. A list that can't be read is told in a message
  // and leaves the screen empty.
  void ChooseWarehouse(const QString& warehouse);
  // Shows its list of that name, where it has one.
  void ChooseListNamed(const QString& name);
  // Saves the ticks and the chosen view, as every way out does.
  void Leave();
  // What the document that picks says of the goods in its warehouse.
  void TellOnHand(StockAfter on_hand) { on_hand_ = std::move(on_hand); }

  RecordList* List() const { return list_; }
  QPushButton* PickCommand() const { return pick_; }

 signals:
  void Picked(const GoodsPick& pick);
  void CloseAsked();

 private:
  enum class Place { kLeft, kRight, kPanel };
  struct Command;
  static std::vector<Command> CommandsOf(PriceUse use);
  void BuildPanel(QVBoxLayout* layout);
  void BuildList();
  void AddCommands(QLayout* row, Place place);
  void Wire();

  bool RefusedToSeller();
  bool MayReplace();
  void ChooseList();
  void Refresh();
  void ListLists();
  void Load();
  PriceList ReadList();
  void TakeList(PriceList list);
  void FollowFiles();
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
  void Bring();
  void Print();
  void SaveList();
  bool Save();
  void ShowWhatIsTaken();

  AppContext& context_;
  const PriceUse use_;
  const Session session_;  // of the Database that it was opened on, which it leaves last
  const PriceStore store_;
  QComboBox* warehouse_;   // "Склад:"
  QComboBox* price_list_;  // "Прайс:"
  GoodsFilter* filter_;
  RecordList* list_;
  RecordModel* model_;
  QPushButton* pick_;  // "Выбрать"
  PriceList prices_;
  bool loaded_ = false;  // without a list nothing is saved, least of all no ticks
  // What is shown, and saved: the fields may be ahead of it for as long as a question stands.
  struct Shown {
    QString warehouse;
    int warehouse_row = -1;
    int list = -1;
  };
  Shown shown_;
  FollowedFiles* files_ = nullptr;
  QByteArray marked_;               // the ticks as they were read
  UnsavedWork* unsaved_ = nullptr;  // of the editor
  QLabel* taken_ = nullptr;         // of the picker: what "Выбрать" takes, and has taken
  StockAfter on_hand_;
  int picks_ = 0;
  QPointer<GoodsDirectoryScreen> goods_;
};

}  // namespace kladez
