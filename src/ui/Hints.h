// What the question marks of the screens tell. A screen asks for its hints by the place at which
// the question mark stands: on Main and Import the name of the picture ("Picture5"), elsewhere the
// heading of the hint, or, where two hints of a screen bear the same heading, what the place says:
// "За год" on the registers, "Куда" on the editor of transfers; "Option" beside each kind of chart.
#pragma once

#include <QStringList>

#include "ui/controls/HintPicture.h"

namespace kladez {

// Throws std::out_of_range for a place without a hint.
const Hint& HintFor(QStringView screen, QStringView place);

// All places of a screen, in the order of the tables; all screens that have hints.
QStringList HintPlaces(QStringView screen);
QStringList ScreensWithHints();

}  // namespace kladez
