// The part that the price list and the on-hand print-out have in common: a heading row in a table
// of its own, then goods in tables that the groups' tables part from each other.
#pragma once

#include "books/printing/PageWriter.h"

namespace kladez {

class GoodsTable {
 public:
  struct Borders {
    bool goods = true;
    bool groups = true;
  };

  // Writes the heading row: "Наименование" at 60%, the others at 10% each, right-aligned.
  GoodsTable(PageWriter& page, const QStringList& headings, Borders borders);

  // The group's name without its blank; the goods after it stand in a table of their own.
  void Group(const QString& name);
  // One text for each heading, the name first.
  void Goods(const QStringList& texts);
  // A row that shows nothing.
  void Gap();
  // Closes the table that is open.
  void End();

 private:
  void OpenGoods();

  PageWriter& page_;
  const qsizetype columns_;
  const Borders borders_;
  bool open_ = false;
};

}  // namespace kladez
