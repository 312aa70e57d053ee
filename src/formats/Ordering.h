// The one order of names, so that every machine shows them alike: upper-cased, code by code, and in
// sorted lists "Ё" directly after "Е". Listings of files (DataDir) keep to the codes alone.
#pragma once

#include <QString>

namespace kladez {

// A key whose plain comparison gives the order; sort stably, so that ties keep their order.
QString OrderKey(QStringView name);

// Upper-cased, for comparisons that do not mind letter case.
QString FoldCase(QStringView name);

}  // namespace kladez
