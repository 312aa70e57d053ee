// The marks that show the numbers of a chart: bars or lines, flat or with depth.
#pragma once

#include <QRectF>

#include "books/reports/ChartGrid.h"
#include "screens/reports/ChartCanvas.h"

namespace kladez {

struct ChartMarks {
  ChartKind kind;
  // What lies behind the lines of the axis.
  void (*draw_backdrop)(const ChartCanvas& canvas);
  // All rows of all columns, the line of zero included.
  void (*draw_rows)(const ChartCanvas& canvas);
  // A column's sample for the legend, within the box.
  void (*draw_key)(const ChartCanvas& canvas, int column, const QRectF& box);
};

const ChartMarks& MarksOf(ChartKind kind);

// The back and the left side of a chart with depth.
void DrawWalls(const ChartCanvas& canvas);
// The plane of zero of a chart with depth, with the line of zero at its near edge.
void DrawFloor(const ChartCanvas& canvas);

// The thin line of a year ago, over all else, and its sample for the legend.
void DrawYearAgo(const ChartCanvas& canvas);
void DrawYearAgoKey(const ChartCanvas& canvas, const QRectF& box);

// ChartBars.cpp
void DrawFlatBars(const ChartCanvas& canvas);
void DrawSolidBars(const ChartCanvas& canvas);
void DrawBarKey(const ChartCanvas& canvas, int column, const QRectF& box);

// ChartLines.cpp
void DrawAreas(const ChartCanvas& canvas);
void DrawFlatLines(const ChartCanvas& canvas);
void DrawRibbons(const ChartCanvas& canvas);
void DrawLineKey(const ChartCanvas& canvas, int column, const QRectF& box);
void DrawRibbonKey(const ChartCanvas& canvas, int column, const QRectF& box);

}  // namespace kladez
