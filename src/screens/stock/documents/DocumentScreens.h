// What the screens of receipts, shipments and transfers differ in: names, captions, columns, which
// fields they have, which print screens they open. The screens themselves are one machinery.
#pragma once

#include <functional>
#include <vector>

#include "books/stock/DocumentDraft.h"
#include "books/stock/LineNotes.h"
#include "books/stock/PrintSource.h"
#include "ui/AppContext.h"
#include "ui/controls/RecordModel.h"

namespace kladez {

// A column of a register; without a field it holds the file name.
struct HeadColumn {
  Column column;
  QString DocumentHead::*field;
};

// A column of an editor or properties screen.
struct LineColumn {
  Column column;
  QString (*text)(const DraftLine&);
  bool hidden_from_seller = false;
};

using TakePick = std::function<void(const GoodsPick&)>;

struct PrintCommand {
  QString name;
  QString caption;
  // Runs the print screen on what another screen shows.
  void (*run)(AppContext&, const PrintSource&, QWidget* parent);
};

struct DocumentScreens {
  DocumentKind kind;

  QString register_name;
  QString register_caption;
  std::vector<HeadColumn> register_columns;
  bool has_journal;                // the command "Печать журнала"
  QString delete_closed_question;  // Yes, No, Cancel
  QString delete_closed_outcome;   // what each answer does

  QString editor_name;
  QString editor_caption;
  QString party_caption;
  QString party_hint;
  QString sum_caption;
  QString sum_hint;
  std::vector<LineColumn> editor_columns;
  // Opens the picker of goods of a warehouse, at a price list where one is named; it tells what is
  // on hand, and hands over each pick.
  void (*pick)(AppContext&, const QString& warehouse, const QString& price_list, QWidget* parent,
               const StockAfter& on_hand, const TakePick& take);
  std::vector<PrintCommand> prints;

  QString properties_name;
  QString properties_caption;  // the number follows it
  QString properties_sum_caption;
  std::vector<LineColumn> properties_columns;
  bool prints_from_properties;

  bool HasDiscount() const { return kind == DocumentKind::kShipment; }
};

const DocumentScreens& ScreensOf(DocumentKind kind);

// The model of a list of lines; `lines` outlives it. The seller sees no costs; rows that are short
// are red.
RecordModel* NewLineModel(const std::vector<LineColumn>& columns, bool for_seller,
                          const std::vector<DraftLine>& lines, QObject* parent,
                          const std::function<bool(int row)>& is_short = {});

}  // namespace kladez
