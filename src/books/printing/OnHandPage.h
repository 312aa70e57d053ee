// The print-out of stock on hand, naltov.htm: goods by group and name whatever the screen shows.
#pragma once

#include <QByteArray>
#include <QDate>

#include "books/stock/OnHand.h"

namespace kladez {

QByteArray OnHandPage(const OnHandList& list, QDate today);

}  // namespace kladez
