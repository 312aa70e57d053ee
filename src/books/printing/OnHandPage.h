// The print-out of stock on hand, naltov.htm: goods by group and name whatever the screen shows.
#pragma once

#include <QByteArray>
#include <QDate>

#include "books/stock/OnHand.h"

namespace kladez {

// The bytes of naltov.htm.
QByteArray OnHandPage(const OnHandList& list, QDate today);

}  // namespace kladez
