#pragma once

#include <array>

#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>

#include "app/board/board.h"
#include "app/board/colour.h"

namespace numorra {

/// Where a drawing stands in its widget: the value block in the middle, as large as it can be.
struct DrawingArea {
  const Board& TheBoard;
  Colour Picked;     ///< the colour that shades
  QPalette Palette;  ///< the theme's colours
  bool Numbers;      ///< whether the numbers are to be read
  QRectF Block;      ///< the value block, a square
  double Side;       ///< of a cell

  /// The middle of the cell (row, column), both from 1.
  QPointF Centre(int row, int column) const {
    return Block.topLeft() + QPointF(column - 0.5, row - 0.5) * Side;
  }

  /// Writes a number in the middle of `place`, as large as that lets it be, with a thin halo that
  /// keeps it readable on whatever is drawn there; nothing where it would be too small to be read.
  static void PaintNumber(QPainter& painter, const std::string& number, const QRectF& place,
                          const QColor& ink, const QColor& halo);

  /// Fills the block and rules its cells.
  void PaintCells(QPainter& painter, const QColor& ground, const QColor& rules) const;
};

/// One way to draw all values of a board at once.
struct DrawingKind {
  const char* Tag;  ///< what the drawing's tag says while it is shown
  const char* Button;
  const char* Caption;
  const char* ToolTip;
  void (*Paint)(QPainter& painter, const DrawingArea& area);
};

/// Circles whose areas are in proportion to the values, the largest filling its cell.
extern const DrawingKind kCircles;

/// The way from the smallest value to the largest.
extern const DrawingKind kVectors;

/// All drawings, in the order of their buttons.
inline constexpr std::array kDrawingKinds = {&kCircles, &kVectors};

}  // namespace numorra
