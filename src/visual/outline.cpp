#include "visual/outline.h"

#include <algorithm>
#include <bitset>

#include "app/board/cell_table.h"

namespace numorra {
namespace {

constexpr QColor kLine(150, 30, 140);

}  // namespace

void PaintOutline(QPainter& painter, const std::vector<Place>& cells,
                  const std::function<QRectF(Place)>& rectOf) {
  constexpr int kSide = CellTable::kSide;
  std::bitset<static_cast<std::size_t>(kSide) * kSide> marked;
  const auto index = [](Place place) {
    return static_cast<std::size_t>(place.Row * kSide + place.Column);
  };
  for (const Place cell : cells)
    marked.set(index(cell));
  const auto outlined = [&](Place place) { return marked[index(place)]; };
  QVector<QLineF> edges;
  double width = 2;
  for (const Place cell : cells) {
    const QRectF rect = rectOf(cell);
    constexpr double kShareOfCell = 0.09;
    width = std::max(width, rect.width() * kShareOfCell);
    const auto [row, column] = cell;
    if (!outlined({row - 1, column})) edges << QLineF(rect.topLeft(), rect.topRight());
    if (!outlined({row + 1, column})) edges << QLineF(rect.bottomLeft(), rect.bottomRight());
    if (!outlined({row, column - 1})) edges << QLineF(rect.topLeft(), rect.bottomLeft());
    if (!outlined({row, column + 1})) edges << QLineF(rect.topRight(), rect.bottomRight());
  }
  constexpr double kLightAround = 2;
  for (const QPen& pen : {QPen(Qt::white, width + kLightAround, Qt::SolidLine, Qt::SquareCap),
                          QPen(kLine, width, Qt::SolidLine, Qt::SquareCap)}) {
    painter.setPen(pen);
    painter.drawLines(edges);
  }
}

}  // namespace numorra
