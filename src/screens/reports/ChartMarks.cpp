#include "screens/reports/ChartMarks.h"

#include <array>

#include "formats/InOrder.h"

namespace kladez {
namespace {

void DrawNothing(const ChartCanvas&) {}

}  // namespace

const ChartMarks& MarksOf(ChartKind kind) {
  static constexpr std::array<ChartMarks, 4> kMarks = {
      {{ChartKind::k3DBars, DrawWalls, DrawSolidBars, DrawBarKey},
       {ChartKind::k2DBars, DrawNothing, DrawFlatBars, DrawBarKey},
       {ChartKind::k3DLines, DrawWalls, DrawRibbons, DrawRibbonKey},
       {ChartKind::k2DLines, DrawAreas, DrawFlatLines, DrawLineKey}}};
  static_assert(IsInOrder(kMarks, &ChartMarks::kind));
  return kMarks[static_cast<size_t>(kind)];
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
