// The seller or the buyer of an invoice or bill: whom the combo names, and that party's record from
// the directory, each field to be typed over. Its table has one row a field.
#pragma once

#include <functional>
#include <vector>

#include "books/printing/InvoicePage.h"
#include "screens/printing/PrintFields.h"

class QComboBox;
class QGroupBox;

namespace kladez {

class PrintDialog;
struct PartyRow;

class PartyBlock {
 public:
  // kFirm is the seller, kClient the buyer. `shown` follows a pick, with the party's texts.
  using Shown = std::function<void(const InvoiceParty&)>;
  PartyBlock(PrintDialog& dialog, PartyKind kind, const Shown& shown = {});

  QGroupBox* NewBox() const;
  // Offers the names and shows the record of one of them. Throws filesystem_error.
  void Load(const QStringList& names, const QString& name);
  // The fields as they stand.
  InvoiceParty Read() const;

 private:
  void ShowRecord();

  struct Field {
    const PartyRow* told;
    TickedField field;
  };
  PrintDialog& dialog_;
  const PartyKind kind_;
  const Shown shown_;
  QComboBox* name_ = nullptr;
  std::vector<Field> fields_;  // the name first
};

}  // namespace kladez
