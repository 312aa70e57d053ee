// The form of one party: its fields in the order of the file. "OK" wants a name.
#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "books/directories/ClientTerms.h"
#include "formats/PartyFile.h"

class QComboBox;
class QVBoxLayout;

namespace kladez {

class TextLine;

// What the form of a client asks besides: what was agreed, and the price lists to choose from.
struct TermsEntry {
  ClientTerms terms;
  QStringList price_lists;
};

class PartyForm : public QDialog {
  Q_OBJECT

 public:
  // `party` fills the fields; an empty one leaves them empty.
  PartyForm(PartyKind kind, const Party& party, QWidget* parent,
            const std::optional<TermsEntry>& terms = {});

  // What was entered; valid after OK.
  Party Record() const;
  ClientTerms Terms() const;

 private:
  void AddTerms(QVBoxLayout* layout, const TermsEntry& entry);
  QStringList Texts() const;
  void Ok();

  std::vector<TextLine*> fields_;    // in the order of the record; captions as CaptionOf has them
  QComboBox* price_list_ = nullptr;  // "Прайс-лист:" of a client
  TextLine* discount_ = nullptr;     // "Скидка %:"
};

}  // namespace kladez
