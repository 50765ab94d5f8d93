#pragma once

#include <array>
#include <string>

#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>

#include "app/board/board.h"
#include "app/board/colour.h"

namespace numorra {

/// The layout of a drawing in its widget: the value block in the middle, as large as possible.
struct DrawingArea {
  const Board& TheBoard;
  Colour Picked;     ///< the colour that shades
  QPalette Palette;  ///< the theme's colours
  bool Numbers;      ///< whether the numbers are shown
  QRectF Block;      ///< the value block, a square
  double Side;       ///< length of a cell's side
  int Which = 0;     ///< of the boards beside each other, from 0

  /// The centre of the cell (row, column), both from 1.
  QPointF Centre(int row, int column) const {
    return Block.topLeft() + QPointF(column - 0.5, row - 0.5) * Side;
  }

  /// Writes a number, or a line of text, in the middle of `place`, as large as possible, with a
  /// thin halo that keeps it readable on any drawing. Writes nothing if it would be too small to
  /// read.
  static void PaintNumber(QPainter& painter, const std::string& number, const QRectF& place,
                          const QColor& ink, const QColor& halo);

  /// Fills the block and draws the lines between its cells.
  void PaintCells(QPainter& painter, const QColor& ground, const QColor& rules) const;
};

/// One way to draw all values of a board at once.
struct DrawingKind {
  const char* Tag;      ///< the drawing's tag while it is shown
  const char* Button;   ///< null if it is only in a menu
  const char* Caption;  ///< a phrase
  const char* ToolTip;  ///< of the button, a phrase
  const char* Item;     ///< the name of its menu item, with the button's caption
  Qt::Key Key;          ///< of the menu item
  void (*Paint)(QPainter& painter, const DrawingArea& area);
  int Boards = 1;  ///< painted beside each other, each in an area of its own

  /// A sentence that says why the board has no such drawing; empty if it has one.
  std::string (*WhyNone)(const Board& board) = [](const Board&) { return std::string(); };
};

/// Circles with areas in proportion to the values; the largest fills its cell.
extern const DrawingKind kCircles;

/// The path from the smallest value to the largest.
extern const DrawingKind kVectors;

/// The two digits to the base n of every number of a normal square, less 1, as two boards.
extern const DrawingKind kDigits;

/// The drawings that have buttons, in the order of these.
inline constexpr std::array kDrawingKinds = {&kCircles, &kVectors};

}  // namespace numorra
