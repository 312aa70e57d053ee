// What tells the three directories of parties apart on the screen: names, titles and captions.
#pragma once

#include <QString>

#include "formats/PartyFile.h"

namespace kladez {

struct PartyScreens {
  QString list;        // "sprFirm"
  QString list_title;  // "Фирмы"
  QString form;        // "sprFirmNew"
  QString form_title;  // "Фирма"
};
const PartyScreens& ScreensOf(PartyKind kind);

struct PartyCaption {
  QString column;   // heading in the list
  QString caption;  // beside the field of the form
  int twips;        // width of the column
};
const PartyCaption& CaptionOf(PartyField field);

}  // namespace kladez
