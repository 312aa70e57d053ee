// The tables behind Hints.h, one for each folder of screens.
#pragma once

#include <QStringView>
#include <span>

namespace kladez {

// One hint, often shared by like screens.
struct HintRow {
  QStringView screens;  // names parted by a blank
  QStringView place;
  QStringView heading;  // empty where it is the place
  QStringView body;
};

std::span<const HintRow> ShellHints();
std::span<const HintRow> DirectoryHints();
std::span<const HintRow> StockHints();
std::span<const HintRow> PrintingHints();
std::span<const HintRow> ReportHints();

}  // namespace kladez
