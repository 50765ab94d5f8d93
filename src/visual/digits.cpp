#include <algorithm>
#include <array>

#include "app/board/base_digits.h"
#include "app/board/numbers.h"
#include "toolkit/colours.h"
#include "visual/drawing_kind.h"
#include "visual/shading.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The digits of the numbers on the board; nothing unless it is a normal square.
std::optional<BaseDigits> DigitsOn(const Board& board) {
  Square<double> numbers(board.GridSize);
  ForEachCell(board.GridSize, [&](int row, int column) {
    const Grid::Cell& cell = board.grid.At(row, column);
    if (!cell.IsGap()) numbers[Place{row, column}] = Val(cell.Text);
  });
  return BaseDigitsOf(numbers);
}

std::string WhyNoDigits(const Board& board) {
  if (DigitsOn(board)) return {};
  const int count = board.GridSize * board.GridSize;
  return Say("Only a board of the numbers 1 to %1, each once, has digits to draw.", count);
}

/// The colour of a share, 0 to 1, of the digits: from dark blue by green to yellow. It gets lighter
/// all the way, so that it can be told without seeing hues.
QColor ColourOf(double share) {
  constexpr std::array<std::array<double, 3>, 5> kStops = {
      {{58, 28, 113}, {48, 95, 160}, {35, 150, 140}, {120, 200, 90}, {250, 228, 70}}};
  const double at = share * (kStops.size() - 1);
  const auto stop = std::min(static_cast<std::size_t>(at), kStops.size() - 2);
  const double part = at - static_cast<double>(stop);
  const auto channel = [&](std::size_t i) {
    return qRound(kStops[stop][i] + part * (kStops[stop + 1][i] - kStops[stop][i]));
  };
  return {channel(0), channel(1), channel(2)};
}

/// Neighbouring cells meet without a seam, as their edges are not blended with what is behind.
void PaintDigits(QPainter& painter, const DrawingArea& area) {
  constexpr double kLargest = 0.6;  // of a digit, as a share of its cell
  constexpr double kTitle = 0.055;  // its height, as a share of the board's width
  const auto digits = DigitsOn(area.TheBoard);
  if (!digits) return;
  const int n = area.TheBoard.GridSize;
  const bool first = area.Which == 0;
  const double height = area.Block.width() * kTitle;
  DrawingArea::PaintNumber(
      painter,
      first ? Say("first digit: (number - 1) div %1", n)
            : Say("second digit: (number - 1) mod %1", n),
      {area.Block.left(), area.Block.top() - 1.5 * height, area.Block.width(), height},
      area.Palette.color(QPalette::WindowText), area.Palette.color(QPalette::Window));
  ForEachCell(n, [&](int row, int column) {
    const int digit = (first ? digits->High : digits->Low)[Place{row, column}];
    const QColor colour = ColourOf(n > 1 ? digit / (n - 1.0) : 0);
    const QPointF corner = area.Block.topLeft() + QPointF(column - 1, row - 1) * area.Side;
    const QRectF cell(corner, QSizeF(area.Side, area.Side));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(cell, colour);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF place(QPointF(), cell.size() * kLargest);
    place.moveCenter(cell.center());
    const Colour behind = Rgb(colour.red(), colour.green(), colour.blue());
    DrawingArea::PaintNumber(painter, std::to_string(digit), place, ToQColor(ReadableOn(behind)),
                             colour);
  });
}

}  // namespace

const DrawingKind kDigits = {"D",         nullptr,   Mark("Di&gits"),
                             nullptr,     "Digitsx", Qt::Key_unknown,
                             PaintDigits, 2,         WhyNoDigits};

}  // namespace numorra
