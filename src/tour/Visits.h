// A walk through all the screens that the road of a sale does not pass, for their pictures.
#pragma once

#include "tour/Robot.h"

namespace kladez {

// From the home screen or any child screen, on the demonstration books after PlayRoad. Makes a
// second Database ("Новая база"), a transfer, and leaves the open Database open.
void VisitScreens(Robot& robot);

}  // namespace kladez
