// The waybill of a shipment, a receipt or a transfer ("PrihNakl", "prihnokl", "vnNakl"): one
// screen, told apart by the kind of document printed.
#pragma once

#include <optional>

#include "books/printing/WaybillPage.h"
#include "screens/printing/NoteBlock.h"
#include "screens/printing/ParametersBlock.h"
#include "screens/printing/PrintDialog.h"
#include "screens/printing/PrintFields.h"
#include "screens/printing/TotalsBlock.h"

namespace kladez {

struct WaybillHeadRow;

class WaybillScreen : public PrintDialog {
  Q_OBJECT

 public:
  WaybillScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);

 private:
  // A line of the head: its tick, and its text or combo.
  struct HeadField {
    const WaybillHeadRow* told;
    QWidget* editor;
    TickedField field;
  };
  std::vector<HeadField> NewHead();
  QLayout* NewHeadBlock();
  void Build();
  void Load();
  void LoadTotals();
  void Print();

  TextLine* const title_;
  const std::vector<HeadField> head_;
  TotalsBlock totals_;
  ParametersBlock parameters_;
  NoteBlock notes_;
};

}  // namespace kladez
