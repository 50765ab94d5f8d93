#pragma once

#include <vector>

#include <QPainter>
#include <QPalette>

#include "app/board/grid.h"
#include "app/window/board/cell_text.h"

namespace numorra {

/// Knows where the cells of a Grid lie and paints them. Edges lie on whole pixels, at
/// round(line x 400 twips x zoom), so cells may differ by one; the fixed row and column stay in
/// place when the rest is scrolled. Texts grow with their cells.
class GridPainter {
 public:
  /// `dpi`: the logical resolution.
  GridPainter(const Grid& grid, const QFont& font, int dpi);

  void SetFont(const QFont& font);

  /// How much larger than 400 twips cells are; at least so large that each is a pixel.
  void SetZoom(double zoom);
  double Zoom() const { return zoom_; }

  /// The largest zoom at which so many lines end within `pixels`.
  double ZoomThatFits(int lines, int pixels) const;

  /// The pixel at which a line begins, unscrolled.
  int Edge(int line) const;

  /// The line of `lines` that is drawn at a pixel when the table is scrolled; -1 beyond the last.
  int LineAt(int position, int scrolled, int lines) const;

  /// Where the cell (row, column) is drawn in the scrolled table.
  QRect CellRect(int row, int column, QPoint scrolled) const;

  /// Whether the cell's text is drawn whole and large enough to be read.
  bool Readable(const Grid::Cell& cell);

  /// How a table is painted: how far it is scrolled, and in which colours where cells have none.
  struct Look {
    QPoint Scrolled;
    QPalette Palette;
  };

  /// Paints the cells in a viewport of `size`, as far as they lie in `dirty`.
  void PaintCells(QPainter& painter, const Look& look, QSize size, const QRect& dirty);

  /// Paints a cell's text over what is there.
  void PaintText(QPainter& painter, const Look& look, const QRect& place, const Grid::Cell& cell);

  /// The colour of a cell's text: on the window's background, that of the window's.
  static QColor TextColour(const Look& look, const Grid::Cell& cell);

 private:
  struct Block {
    int FirstRow, RowEnd, FirstColumn, ColumnEnd;
  };
  void PaintBlock(QPainter& painter, const Look& look, const QRect& area, const Block& block);
  void PaintBlockEdge(QPainter& painter, const Look& look, const QRect& cell, int row, int column);
  static void PaintWrongMark(QPainter& painter, const QRect& cell);
  CellText& TextsFor(const Grid::Cell& cell) { return cell.Given ? givens_ : texts_; }

  const Grid& grid_;
  QFont font_;
  int dpi_;
  double zoom_ = 1;
  mutable std::vector<int> edges_;  ///< by line, as far as they have been asked for
  CellText texts_;
  CellText givens_;  ///< heavier, for given numbers
};

}  // namespace numorra
