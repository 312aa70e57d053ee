#include "screens/reports/ChartMarks.h"

#include <array>

namespace kladez {
namespace {

void DrawNothing(const ChartCanvas&) {}

}  // namespace

const ChartMarks& MarksOf(ChartKind kind) {
  // In the order of the kinds' numbers.
  static constexpr std::array<ChartMarks, 4> kMarks = {{{DrawWalls, DrawSolidBars, DrawBarKey},
                                                        {DrawNothing, DrawFlatBars, DrawBarKey},
                                                        {DrawWalls, DrawRibbons, DrawRibbonKey},
                                                        {DrawAreas, DrawFlatLines, DrawLineKey}}};
  return kMarks[static_cast<std::size_t>(kind)];
}

void DrawWalls(const ChartCanvas& canvas) {
  const QRectF& front = canvas.layout.front;
  canvas.FillRect(front.translated(canvas.layout.depth), canvas.style.wall);
  canvas.FillPolygon({front.bottomLeft(), front.topLeft(), canvas.Behind(front.topLeft(), 1),
                      canvas.Behind(front.bottomLeft(), 1)},
                     canvas.style.side_wall);
}

void DrawFloor(const ChartCanvas& canvas) {
  const QRectF& front = canvas.layout.front;
  const double zero = canvas.pixels.Y(canvas.layout.Y(0));
  const QPointF left(front.left(), zero);
  const QPointF right(front.right(), zero);
  canvas.FillPolygon({left, right, canvas.Behind(right, 1), canvas.Behind(left, 1)},
                     canvas.style.floor);
  canvas.FillLineAcross(left.x(), right.x(), zero, canvas.style.zero_line);
}

}  // namespace kladez
