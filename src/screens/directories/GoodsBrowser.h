// The goods directory as its screens show it: the list in its five columns under the panel of
// search and view. The screens add their commands.
#pragma once

#include <QWidget>

#include "books/directories/GoodsDirectory.h"
#include "screens/directories/GoodsFilter.h"
#include "ui/AppContext.h"
#include "ui/HistoryCommand.h"

namespace kladez {

class GoodsBrowser : public QWidget {
  Q_OBJECT

 public:
  // Check marks of the rows; the list has none where they are left empty.
  struct Ticks {
    std::function<bool(int row)> checked;
    std::function<void(int row, bool on)> set_checked;
  };

  // Loads the directory in the view of the settings; throws filesystem_error.
  GoodsBrowser(AppContext& context, QStringView screen, const Ticks& ticks, QWidget* parent);

  GoodsDirectory& Directory() { return directory_; }
  GoodsFilter* Filter() const { return filter_; }
  RecordList* List() const { return list_; }
  RecordModel* Model() const { return model_; }

  // The selected row's record; nothing where none is selected.
  std::optional<GoodsRecord> Selected() const;
  // The same for the command "История…".
  GoodsInWarehouse ForHistory() const;
  // Shows all rows anew and keeps the record selected that was, or else selects the first row.
  void ShowAnew(const std::function<void()>& change);

  // Selects the goods of a name, or else the first row that is no group.
  void SelectForPick(const QString& name);

  // Writes the widths of the columns as they are now, in twips, under "c1" to "c5".
  void SaveWidths();

 private:
  AppContext& context_;
  GoodsDirectory directory_;
  GoodsFilter* filter_;
  RecordList* list_;  // ListView1
  RecordModel* model_;
};

// Writes one width, "c1" for column 1.
void SaveWidth(SettingsStore& store, int column, int twips);

}  // namespace kladez
