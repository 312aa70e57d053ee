// The goods lines in the editor of a document: the list, its commands, and what the warehouse
// lacks.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "books/stock/DraftStock.h"
#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QLayout;

namespace kladez {

class RecordList;

class DocumentLines : public QWidget {
  Q_OBJECT

 public:
  // The lines of the draft, which outlives this; reads its stock at Refresh().
  DocumentLines(AppContext& context, DocumentDraft& draft, QWidget* parent);

  RecordList* List() const { return list_; }
  // "Добавить", "Изменить", "Удалить"
  const std::vector<QWidget*>& Commands() const { return commands_; }
  // Reads the stock anew, marks what the warehouse lacks and shows the lines.
  void Refresh();
  // The price list that picks and scans begin with; empty: the first.
  void SetPriceList(const QString& name) { price_list_ = name; }
  // Adds one piece of the goods with this barcode.
  void TakeScan(const QString& code);

 signals:
  // Lines were added, changed or removed, and the sums of the draft with them.
  void Changed();

 private:
  void BuildList();
  QLayout* NewCommands();
  void Add();
  void TakePick(const GoodsPick& pick);
  void Change();
  void Remove();
  void TakeStock();
  // The warehouse runs out with the line, or it is sold at or below its cost.
  bool IsAmiss(int row) const;
  void TellChange(int row);

  AppContext& context_;
  DocumentDraft& draft_;
  const DocumentScreens& screens_;
  std::optional<DraftStock> stock_;  // where directory and ledger can be read
  QString price_list_;
  std::vector<bool> short_lines_;  // the warehouse runs out with them
  RecordList* list_;
  std::vector<QWidget*> commands_;
};

}  // namespace kladez
