// A goods line that was just picked or asked for: what a picker answers to the screen that opened
// it.
#pragma once

#include <QString>

namespace kladez {

struct GoodsPick {
  QString name;
  QString quantity;
  QString unit;
  QString cost;   // purchase price as the picked row shows it
  QString price;  // price asked for, "#0.00"
  bool is_group = false;
};

}  // namespace kladez
