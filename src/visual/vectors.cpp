#include <algorithm>
#include <array>
#include <cmath>

#include "visual/drawing_kind.h"
#include "visual/shading.h"
#include "visual/value_path.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr double kSmallestArrowed = 30;  // smallest side of a cell for arrow heads
constexpr double kFirstHue = 0.68;       // blue, going to red

/// The colours of the path from start to end, each dark or light enough to stand out from the
/// ground.
class Hues {
 public:
  explicit Hues(const QColor& ground) {
    const Colour behind = Rgb(ground.red(), ground.green(), ground.blue());
    const bool darker = ReadableOn(behind) == Rgb(0, 0, 0);
    for (std::size_t i = 0; i < hues_.size(); ++i) {
      const auto hue = static_cast<float>(kFirstHue * (1 - static_cast<double>(i) / kLast));
      float saturation = kSaturation;
      float value = kValue;
      do {
        hues_[i] = QColor::fromHsvF(hue, saturation, value);
        darker ? value -= kStep : (value < 1 - kStep ? value += kStep : saturation -= kStep);
      } while (saturation > 0 && value > 0 &&
               Contrast(Rgb(hues_[i].red(), hues_[i].green(), hues_[i].blue()), behind) < kEnough);
    }
  }

  /// The colour at a share, 0 to 1, of the path.
  const QColor& At(double share) const { return hues_[static_cast<std::size_t>(share * kLast)]; }

 private:
  static constexpr int kLast = 127;
  static constexpr float kSaturation = 0.85F;
  static constexpr float kValue = 0.85F;
  static constexpr float kStep = 0.03F;
  static constexpr double kEnough = 3;

  std::array<QColor, kLast + 1> hues_;
};

/// An arrow head halfway between two points.
void PaintArrowHead(QPainter& painter, QPointF from, QPointF to, double size) {
  const QPointF way = to - from;
  const double length = std::hypot(way.x(), way.y());
  if (length < size) return;
  const QPointF along = way / length * size;
  const QPointF across(-along.y() / 2, along.x() / 2);
  const QPointF tip = (from + to) / 2 + along / 2;
  painter.drawPolygon(QPolygonF({tip, tip - along + across, tip - along - across}));
}

/// The path's hue runs from blue to red; a ring marks its start, a square its end.
void PaintVectors(QPainter& painter, const DrawingArea& area) {
  const QColor ground = area.Palette.color(QPalette::Base);
  const QColor ink = area.Palette.color(QPalette::Text);
  const Hues hues(ground);
  area.PaintCells(painter, ground, area.Palette.color(QPalette::Mid));
  const auto path = ValuePath(area.TheBoard);
  if (path.empty()) return;
  const double side = area.Side;
  const double pen = std::clamp(side / 12, 0.8, 3.0);
  const auto steps = static_cast<double>(path.size() - 1);
  for (std::size_t i = 1; i < path.size(); ++i) {
    const QPointF from = area.Centre(path[i - 1].Row, path[i - 1].Column);
    const QPointF to = area.Centre(path[i].Row, path[i].Column);
    const QColor& hue = hues.At(static_cast<double>(i) / steps);
    painter.setPen(QPen(hue, pen, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(from, to);
    if (side < kSmallestArrowed) continue;
    painter.setPen(Qt::NoPen);
    painter.setBrush(hue);
    PaintArrowHead(painter, from, to, std::min(side / 3, 14.0));
  }
  const double mark = std::clamp(side / 4, 4.0, 12.0);
  const QPointF start = area.Centre(path.front().Row, path.front().Column);
  const QPointF end = area.Centre(path.back().Row, path.back().Column);
  painter.setPen(QPen(ink, pen));
  painter.setBrush(ground);
  painter.drawEllipse(start, mark, mark);
  painter.setBrush(hues.At(1));
  painter.drawRect(QRectF(end.x() - mark, end.y() - mark, 2 * mark, 2 * mark));
  if (!area.Numbers) return;
  // Each number in the upper left of its cell, beside the path.
  for (const ValuedCell& cell : path) {
    const QPointF corner = area.Centre(cell.Row, cell.Column) - QPointF(side, side) / 2;
    const QRectF place(corner + QPointF(1, 1), QSizeF(side * 0.48, side * 0.3));
    DrawingArea::PaintNumber(painter, area.TheBoard.grid.Text(cell.Row, cell.Column), place, ink,
                             ground);
  }
}

}  // namespace

const DrawingKind kVectors = {"V",
                              "Command2",
                              Mark("Vec&tors"),
                              Mark("Draw a path from the smallest number to the largest"),
                              "BoardVectorsx",
                              Qt::Key_F3,
                              PaintVectors};

}  // namespace numorra
