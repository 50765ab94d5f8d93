#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include <QPaintEngine>
#include <QPixmap>

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

/// A cell's ground with a round hole in it, to be laid over a cell of the circle's shade. Filling a
/// soft-edged circle is the slowest part of the drawing, and a large board has thousands of
/// circles, but only some dozens of radii that differ by a quarter of a pixel.
class Holes {
 public:
  /// For cells of `side` pixels, on a device with `ratio` dots to the pixel.
  Holes(int side, double ratio) : side_(side), ratio_(ratio) {}

  const QPixmap& Of(double radius) {
    QPixmap& hole = holes_[std::lround(radius * kSteps)];
    if (hole.isNull()) hole = Cut(radius);
    return hole;
  }

 private:
  static constexpr int kSteps = 4;  // to the pixel

  QPixmap Cut(double radius) const {
    QPixmap hole(QSize(side_, side_) * ratio_);
    hole.setDevicePixelRatio(ratio_);
    hole.fill(Qt::transparent);  // gives it an alpha channel
    QPainter painter(&hole);
    painter.fillRect(0, 0, side_, side_, kGround);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QPointF(side_, side_) / 2, radius, radius);
    return hole;
  }

  int side_;
  double ratio_;
  std::map<long, QPixmap> holes_;
};

/// Whether a painter paints pixels as they are, neither scaled nor for a file of shapes.
bool PaintsPixels(const QPainter& painter) {
  const double ratio = painter.device()->devicePixelRatioF();
  return painter.paintEngine()->type() == QPaintEngine::Raster &&
         painter.transform().type() <= QTransform::TxTranslate && ratio == std::round(ratio);
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
  const int inner = static_cast<int>(2 * fullRadius);  // of a cell, without its lines
  Holes holes(inner, painter.device()->devicePixelRatioF());
  const bool many = static_cast<double>(path.size()) > 8 * fullRadius && PaintsPixels(painter);
  painter.setPen(Qt::NoPen);
  for (const ValuedCell& cell : path) {
    if (cell.Value <= 0) continue;
    const double radius = fullRadius * std::sqrt(cell.Value / largest);
    const QPointF centre = area.Centre(cell.Row, cell.Column);
    const QColor shade = ToQColor(shading.Of(cell.Value).value_or(area.Picked));
    if (many) {
      const QPoint corner = (centre - QPointF(inner, inner) / 2).toPoint();
      painter.fillRect(QRect(corner, QSize(inner, inner)), shade);
      painter.drawPixmap(corner, holes.Of(radius));
    } else {
      std::transform(unit.begin(), unit.end(), circle.begin(),
                     [&](QPointF point) { return centre + point * radius; });
      painter.setBrush(shade);
      painter.drawConvexPolygon(circle);
    }
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
