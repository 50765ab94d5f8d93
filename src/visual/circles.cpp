#include <algorithm>
#include <cmath>
#include <numbers>

#include "toolkit/colours.h"
#include "visual/drawing_kind.h"
#include "visual/shading.h"
#include "visual/value_path.h"
#include "words/say.h"

namespace numorra {
namespace {

const QColor kGround(104, 108, 114);  // makes white and dark circles stand out
const QColor kRules = kGround.lighter(115);

/// A circle of radius 1 as a polygon, accurate to a tenth of a pixel when drawn with `radius`. The
/// toolkit's own ellipses take twice as long.
QPolygonF UnitCircle(double radius) {
  constexpr double kFlatness = 0.2;
  const double half = std::acos(std::max(0.0, 1 - kFlatness / std::max(radius, 1.0)));
  const int corners = std::max(8, static_cast<int>(std::ceil(std::numbers::pi / half)));
  QPolygonF circle;
  for (int i = 0; i < corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    circle << QPointF(std::cos(angle), std::sin(angle));
  }
  return circle;
}

/// Paints the numbers over the circles, each with a halo in its circle's shade, so that it stays
/// readable where it is wider than its circle.
void PaintNumbers(QPainter& painter, const DrawingArea& area, const std::vector<ValuedCell>& path,
                  const Shading& shading) {
  const QSizeF size(area.Side * 0.8, area.Side * 0.36);
  for (const ValuedCell& cell : path) {
    QRectF place(QPointF(), size);
    place.moveCenter(area.Centre(cell.Row, cell.Column));
    const Colour shade = shading.Of(cell.Value).value_or(area.Picked);
    DrawingArea::PaintNumber(painter, area.TheBoard.grid.Text(cell.Row, cell.Column), place,
                             ToQColor(ReadableOn(shade)), ToQColor(shade));
  }
}

void PaintCircles(QPainter& painter, const DrawingArea& area) {
  area.PaintCells(painter, kGround, kRules);
  const auto path = ValuePath(area.TheBoard);
  if (path.empty()) return;
  const double largest = path.back().Value;
  if (largest <= 0) return;
  const Shading shading(area.TheBoard, area.Picked);
  const double fullRadius = area.Side / 2 - 0.5;
  const QPolygonF unit = UnitCircle(fullRadius);
  QPolygonF circle = unit;
  painter.setPen(Qt::NoPen);
  for (const ValuedCell& cell : path) {
    if (cell.Value <= 0) continue;
    const double radius = fullRadius * std::sqrt(cell.Value / largest);
    const QPointF centre = area.Centre(cell.Row, cell.Column);
    std::transform(unit.begin(), unit.end(), circle.begin(),
                   [&](QPointF point) { return centre + point * radius; });
    painter.setBrush(ToQColor(shading.Of(cell.Value).value_or(area.Picked)));
    painter.drawConvexPolygon(circle);
  }
  if (area.Numbers) PaintNumbers(painter, area, path, shading);
}

}  // namespace

const DrawingKind kCircles = {"C",
                              "Command1",
                              Mark("Cric&les"),
                              Mark("Draw each number as a circle of its size"),
                              "BoardCriclesx",
                              Qt::Key_F2,
                              PaintCircles};

}  // namespace numorra
