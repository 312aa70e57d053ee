// What tells the three directories of parties apart on the screen: names, titles and captions.
#pragma once

#include <QStringView>

#include "formats/PartyFile.h"

namespace kladez {

struct PartyScreens {
  PartyKind kind;
  QStringView list;        // "sprFirm"
  QStringView list_title;  // "Фирмы"
  QStringView form;        // "sprFirmNew"
  QStringView form_title;  // "Фирма"
};
const PartyScreens& ScreensOf(PartyKind kind);

struct PartyCaption {
  PartyField field;
  QStringView column;   // heading in the list
  QStringView caption;  // beside the field of the form
  int twips;            // width of the column
};
const PartyCaption& CaptionOf(PartyField field);

}  // namespace kladez
