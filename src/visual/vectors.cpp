#include <algorithm>
#include <cmath>

#include "toolkit/colours.h"
#include "visual/drawing_kind.h"
#include "visual/value_path.h"

namespace numorra {
namespace {

constexpr double kSmallestArrowed = 30;  // the cells' side from which steps have arrow heads
const QColor kRules(205, 205, 205);
constexpr double kFirstHue = 0.68;  // blue, going to red

/// The colour of a share, 0 to 1, of the way.
QColor HueAt(double share) {
  return QColor::fromHsvF(static_cast<float>(kFirstHue * (1 - share)), 0.85F, 0.85F);
}

/// An arrow head half way from one point to another.
void PaintArrowHead(QPainter& painter, QPointF from, QPointF to, double size) {
  const QPointF way = to - from;
  const double length = std::hypot(way.x(), way.y());
  if (length < size) return;
  const QPointF along = way / length * size;
  const QPointF across(-along.y() / 2, along.x() / 2);
  const QPointF tip = (from + to) / 2 + along / 2;
  painter.drawPolygon(QPolygonF({tip, tip - along + across, tip - along - across}));
}

/// Its hue runs from blue to red; a ring stands where it starts, a square where it ends.
void PaintVectors(QPainter& painter, const DrawingArea& area) {
  area.PaintCells(painter, ToQColor(ColorTable[kCellBackground]), kRules);
  const auto path = ValuePath(area.TheBoard);
  const double pen = std::clamp(area.Side / 12, 0.8, 3.0);
  const auto steps = static_cast<double>(path.size() - 1);
  for (std::size_t i = 1; i < path.size(); ++i) {
    const QPointF from = area.Centre(path[i - 1].Row, path[i - 1].Column);
    const QPointF to = area.Centre(path[i].Row, path[i].Column);
    const QColor hue = HueAt(static_cast<double>(i) / steps);
    painter.setPen(QPen(hue, pen, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(from, to);
    if (area.Side < kSmallestArrowed) continue;
    painter.setPen(Qt::NoPen);
    painter.setBrush(hue);
    PaintArrowHead(painter, from, to, std::min(area.Side / 3, 14.0));
  }
  const double mark = std::clamp(area.Side / 4, 4.0, 12.0);
  const QPointF start = area.Centre(path.front().Row, path.front().Column);
  const QPointF end = area.Centre(path.back().Row, path.back().Column);
  painter.setPen(QPen(Qt::black, pen));
  painter.setBrush(Qt::white);
  painter.drawEllipse(start, mark, mark);
  painter.setBrush(HueAt(1));
  painter.drawRect(QRectF(end.x() - mark, end.y() - mark, 2 * mark, 2 * mark));
}

}  // namespace

const DrawingKind kVectors = {"V", "Command2", "Vec&tors",
                              "Draw the way from the smallest number to the largest", PaintVectors};

}  // namespace numorra
