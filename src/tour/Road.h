// The road of one sale through the real windows: goods and parties are entered, goods received,
// prices set, and a shipment with a discount closed and printed. The guided tour plays it on the
// demonstration books, the end-to-end test in an empty data directory.
#pragma once

#include "tour/Robot.h"

namespace kladez {

// From the landing screen: a new Database, or the one of that name in the catalogue.
void CreateDatabaseByHand(Robot& robot, const QString& name);
void OpenDatabaseByHand(Robot& robot, const QString& name);

// From the home screen, through to the printed waybill and the closed shipment.
void PlayRoad(Robot& robot);

}  // namespace kladez
