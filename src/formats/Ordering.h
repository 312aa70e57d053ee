// The one order of names, so that every machine shows them alike: upper-cased, code by code, and in
// sorted lists "Ё" directly after "Е". Listings of files (DataDir) keep to the codes alone.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <functional>
#include <vector>

namespace kladez {

// A key whose plain comparison gives the order; sort stably, so that ties keep their order.
QString OrderKey(QStringView name);

// The places of names in order, from 0 to `count`; equal ones keep theirs. The same as a stable
// sort by OrderKey, but quick: a hundred thousand names of Windows-1251 are compared as bytes.
std::vector<size_t> PlacesInOrder(size_t count, const std::function<QStringView(size_t)>& name);
// The same of names in Windows-1251.
std::vector<size_t> PlacesInOrder(const std::vector<QByteArrayView>& names);

// Upper-cased, for comparisons that do not mind letter case.
QString FoldCase(QStringView name);

}  // namespace kladez
