#pragma once

#include <optional>
#include <vector>

#include <QPainter>
#include <QPalette>

#include "app/board/grid.h"
#include "app/window/cell_text.h"

namespace numorra {

/// Knows where the cells of a Grid lie and paints them. Edges lie on whole pixels, at
/// round(line x 400 twips), so cells may differ by one; the fixed row and column stay in place when
/// the rest is scrolled.
class GridPainter {
 public:
  /// `dpi`: the logical resolution.
  GridPainter(const Grid& grid, const QFont& font, int dpi);

  void SetFont(const QFont& font);

  /// The pixel at which a line begins, unscrolled.
  int Edge(int line) const;

  /// The line of `lines` that is drawn at a pixel when the table is scrolled; -1 beyond the last.
  int LineAt(int position, int scrolled, int lines) const;

  /// Where the cell (row, column) is drawn in the scrolled table.
  QRect CellRect(int row, int column, QPoint scrolled) const;

  /// Whether the cell's text is drawn whole and large enough to be read.
  bool Readable(int row, int column);

  /// How a table is painted: how far it is scrolled, and in which colours where cells have none.
  struct Look {
    QPoint Scrolled;
    QPalette Palette;
  };

  /// Paints the cells in a viewport of `size`, as far as they lie in `dirty`.
  void PaintCells(QPainter& painter, const Look& look, QSize size, const QRect& dirty);

  /// Paints a cell's text over what is there.
  void PaintText(QPainter& painter, const Look& look, int row, int column);

  /// The colour of a cell's text: on the window's background, that of the window's.
  QColor TextColour(const Look& look, int row, int column) const;

 private:
  struct Block {
    int FirstRow, RowEnd, FirstColumn, ColumnEnd;
  };
  void PaintBlock(QPainter& painter, const Look& look, const QRect& area, const Block& block);
  void PaintBlockEdge(QPainter& painter, const Look& look, const QRect& cell, int row, int column);
  static void PaintWrongMark(QPainter& painter, const QRect& cell);
  CellText& TextsFor(int row, int column) { return grid_.Given(row, column) ? givens_ : texts_; }

  const Grid& grid_;
  int dpi_;
  mutable std::vector<int> edges_;  ///< by line, as far as they have been asked for
  CellText texts_;
  CellText givens_;  ///< heavier, for given numbers
};

}  // namespace numorra
