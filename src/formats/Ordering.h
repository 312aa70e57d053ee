// The one order of names: upper-cased, code by code, "Ё" directly after "Е". Listings of files and
// sorted lists use it, so that every machine shows them alike.
#pragma once

#include <QString>

namespace kladez {

// A key whose plain comparison gives the order; sort stably, so that ties keep their order.
QString OrderKey(QStringView name);

// Upper-cased, for comparisons that do not mind letter case.
QString FoldCase(QStringView name);

}  // namespace kladez
