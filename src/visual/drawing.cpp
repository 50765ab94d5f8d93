#include "visual/drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QPainter>

#include "visual/shading.h"
#include "visual/value_path.h"

namespace numorra {
namespace {

constexpr double kMargin = 8;                // pixels around the drawing
constexpr double kSmallestArrowed = 30;      // the cells' side from which steps have arrow heads
const QColor kBehindCircles(104, 108, 114);  // lets white and dark ones stand out
const QColor kRules(205, 205, 205);
constexpr double kFirstHue = 0.68;  // blue, going to red

QColor ToQColor(Colour colour) {
  return {colour.Red, colour.Green, colour.Blue};
}

/// A circle of radius 1 as a polygon that is nowhere further than a tenth of a pixel from the
/// circle when it is drawn with `radius`. The toolkit's own ellipses take twice as long.
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

}  // namespace

Drawing::Drawing(const Board& board, QWidget* parent) : QWidget(parent), board_(board) {
  setObjectName("Picture1");
  setProperty("tag", "");
  setAttribute(Qt::WA_OpaquePaintEvent);  // or the frames behind would be painted first
  setAccessibleName("Drawing of the board");
}

void Drawing::SetColour(Colour picked) {
  picked_ = picked;
  update();
}

void Drawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  if (!board_.OverlayShown() || !board_.Shown()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  PaintCells(painter);
  if (board_.Overlay == OverlayKind::Circles) PaintCircles(painter);
  if (board_.Overlay == OverlayKind::Vectors) PaintVectors(painter);
}

double Drawing::Side() const {
  return std::max(1.0, (std::min(width(), height()) - 2 * kMargin) / board_.GridSize);
}

/// Where the block begins: it stands in the middle.
QPointF Drawing::Origin() const {
  const double block = board_.GridSize * Side();
  return {(width() - block) / 2, (height() - block) / 2};
}

QPointF Drawing::Centre(int row, int column) const {
  return Origin() + QPointF(column - 0.5, row - 0.5) * Side();
}

void Drawing::PaintCells(QPainter& painter) const {
  const int n = board_.GridSize;
  const double side = Side();
  const QRectF block(Origin(), QSizeF(n, n) * side);
  const bool circles = board_.Overlay == OverlayKind::Circles;
  painter.fillRect(block, circles ? kBehindCircles : ToQColor(ColorTable[kCellBackground]));
  painter.setPen(QPen(circles ? kBehindCircles.lighter(115) : kRules, 1));
  for (int line = 0; line <= n; ++line) {
    const QPointF down(0, line * side);
    const QPointF across(line * side, 0);
    painter.drawLine(block.topLeft() + down, block.topRight() + down);
    painter.drawLine(block.topLeft() + across, block.bottomLeft() + across);
  }
}

/// Circles whose areas are in proportion to the values, the largest filling its cell.
void Drawing::PaintCircles(QPainter& painter) const {
  const auto path = ValuePath(board_);
  const double largest = path.back().Value;
  if (largest <= 0) return;
  const Shading shading(board_, picked_);
  const double fullRadius = Side() / 2 - 0.5;
  const QPolygonF unit = UnitCircle(fullRadius);
  QPolygonF circle = unit;
  painter.setPen(Qt::NoPen);
  for (const ValuedCell& cell : path) {
    if (cell.Value <= 0) continue;
    const double radius = fullRadius * std::sqrt(cell.Value / largest);
    const QPointF centre = Centre(cell.Row, cell.Column);
    std::transform(unit.begin(), unit.end(), circle.begin(),
                   [&](QPointF point) { return centre + point * radius; });
    painter.setBrush(ToQColor(shading.Of(cell.Value).value_or(picked_)));
    painter.drawConvexPolygon(circle);
  }
}

/// The way from the smallest value to the largest, its hue running from blue to red; a ring where
/// it starts, a square where it ends.
void Drawing::PaintVectors(QPainter& painter) const {
  const auto path = ValuePath(board_);
  const double side = Side();
  const double pen = std::clamp(side / 12, 0.8, 3.0);
  const auto steps = static_cast<double>(path.size() - 1);
  for (std::size_t i = 1; i < path.size(); ++i) {
    const QPointF from = Centre(path[i - 1].Row, path[i - 1].Column);
    const QPointF to = Centre(path[i].Row, path[i].Column);
    const QColor hue = HueAt(static_cast<double>(i) / steps);
    painter.setPen(QPen(hue, pen, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(from, to);
    if (side < kSmallestArrowed) continue;
    painter.setPen(Qt::NoPen);
    painter.setBrush(hue);
    PaintArrowHead(painter, from, to, std::min(side / 3, 14.0));
  }
  const double mark = std::clamp(side / 4, 4.0, 12.0);
  const QPointF start = Centre(path.front().Row, path.front().Column);
  const QPointF end = Centre(path.back().Row, path.back().Column);
  painter.setPen(QPen(Qt::black, pen));
  painter.setBrush(Qt::white);
  painter.drawEllipse(start, mark, mark);
  painter.setBrush(HueAt(1));
  painter.drawRect(QRectF(end.x() - mark, end.y() - mark, 2 * mark, 2 * mark));
}

}  // namespace numorra
