// Price lists on the disk: their names in <warehouse>\price.usd, one a line, and their rows in
// <warehouse>\PRICE. The list in line i of the names is the file in place i of the directory's
// listing; nothing else ties the two together, and two lists may bear the same name.
//
//   price.usd    Розница          PRICE\0001.prc
//                Мелкий опт             0002.prc
//                Опт                    0003.prc
#pragma once

#include <QString>
#include <QStringList>

#include "books/prices/PriceList.h"
#include "books/store/DataDir.h"
#include "books/store/SaveSet.h"
#include "books/store/Session.h"

namespace kladez {

class PriceStore {
 public:
  // The lists of the open Database; nothing is read yet. Both outlive the store.
  PriceStore(const DataDir& data, const Session& session) : data_(data), session_(session) {}

  // The names of a warehouse's lists; none where the file can't be read.
  QStringList Names(const QString& warehouse) const;

  // The list at a place among the names, from 0. One that has no file shows the purchase prices.
  // Throws filesystem_error.
  PriceList Load(const QString& warehouse, int index, GoodsView view,
                 const Progress& progress = {}) const;
  // The same over a goods directory that is not saved yet.
  PriceList LoadOver(const QByteArray& goods, const QString& warehouse, int index, GoodsView view,
                     const Progress& progress = {}) const;
  // Adds the list's rows to a set that is saved with more; the list lives until then. Throws
  // filesystem_error where the list has no file.
  void Gather(SaveSet& save, PriceList& list, const QString& warehouse, int index) const;

  // Whether the list is still that of the files of its place.
  bool IsCurrent(const PriceList& list, const QString& warehouse, int index) const;

  // Each is one save, all or nothing, and throws filesystem_error.
  void Save(PriceList& list, const QString& warehouse, int index) const;  // ticks too
  void SaveTicks(PriceList& list) const;
  void Copy(const PriceList& list) const;  // to the clipboard, temp.prc
  // Replaces the rows of `list` by the clipboard's and writes them to the list's file. False, with
  // nothing done, where the clipboard is empty.
  bool Paste(PriceList& list, const QString& warehouse, int index) const;

 private:
  QStringList Files(const QString& warehouse) const;
  // Throws filesystem_error where there are fewer files than names.
  QString FileOf(const QString& warehouse, int index) const;

  const DataDir& data_;
  const Session& session_;
};

}  // namespace kladez
