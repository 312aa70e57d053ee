// The form of one party: its fields in the order of the file. "OK" wants a name.
#pragma once

#include <QDialog>
#include <vector>

#include "formats/PartyFile.h"

namespace kladez {

class TextLine;

class PartyForm : public QDialog {
  Q_OBJECT

 public:
  // `party` fills the fields; an empty one leaves them empty.
  PartyForm(PartyKind kind, const Party& party, QWidget* parent);

  // What was entered; valid after OK.
  Party Record() const;

 private:
  void Ok();

  std::vector<TextLine*> fields_;  // in the order of the record; captions as CaptionOf has them
};

}  // namespace kladez
