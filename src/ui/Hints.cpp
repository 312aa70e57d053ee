#include "ui/Hints.h"

#include <map>
#include <stdexcept>
#include <vector>

#include "ui/hints/HintTable.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct PlacedHint {
  QString place;
  Hint hint;
};
using HintMap = std::map<QString, std::vector<PlacedHint>>;

HintMap GatherHints() {
  HintMap hints;
  for (const auto rows :
       {ShellHints(), DirectoryHints(), StockHints(), PrintingHints(), ReportHints()}) {
    for (const HintRow& row : rows) {
      const QStringView heading = row.heading.isEmpty() ? row.place : row.heading;
      for (const QStringView screen : row.screens.split(u' ')) {
        hints[screen.toString()].push_back(
            {row.place.toString(), {heading.toString(), row.body.toString()}});
      }
    }
  }
  return hints;
}

const HintMap& AllHints() {
  static const HintMap hints = GatherHints();
  return hints;
}

}  // namespace

const Hint& HintFor(QStringView screen, QStringView place) {
  for (const PlacedHint& placed : AllHints().at(screen.toString())) {
    if (placed.place == place) return placed.hint;
  }
  const QString where = screen.toString() + u": "_s + place.toString();
  throw std::out_of_range("no hint at " + where.toStdString());
}

QStringList HintPlaces(QStringView screen) {
  QStringList places;
  const auto hints = AllHints().find(screen.toString());
  if (hints == AllHints().end()) return places;
  for (const PlacedHint& placed : hints->second) places.append(placed.place);
  return places;
}

QStringList ScreensWithHints() {
  QStringList screens;
  for (const auto& [screen, hints] : AllHints()) screens.append(screen);
  return screens;
}

}  // namespace kladez
