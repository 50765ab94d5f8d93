#pragma once

#include <optional>
#include <vector>

#include <QPainter>
#include <QPalette>

#include "app/board/grid.h"
#include "app/window/board/cell_text.h"
#include "app/window/board/note_text.h"

namespace numorra {

/// Computes where the cells of a Grid are and paints them. Edges lie on whole pixels, at round(line
/// x 400 twips x zoom), so cell sizes may differ by one; the fixed row and column do not scroll.
/// Texts grow with their cells.
class GridPainter {
 public:
  /// `dpi`: the logical resolution.
  GridPainter(const Grid& grid, const QFont& font, int dpi);

  void SetFont(const QFont& font);

  /// The factor by which cells are larger than 400 twips; cells are always at least one pixel.
  void SetZoom(double zoom);
  double Zoom() const { return zoom_; }

  /// The largest zoom at which that many lines fit in `pixels`.
  double ZoomThatFits(int lines, int pixels) const;

  /// The pixel at which a line begins, without scrolling.
  int Edge(int line) const;

  /// The line, of `lines`, that is drawn at a pixel of the scrolled table; -1 beyond the last.
  int LineAt(int position, int scrolled, int lines) const;

  /// The rectangle of the cell (row, column) in the scrolled table.
  QRect CellRect(int row, int column, QPoint scrolled) const;

  /// Whether the cell's text, or all its notes, are drawn uncut and large enough to read.
  bool Readable(int row, int column);

  /// How a table is painted: its scroll position, the palette for cells without colours, and the
  /// pixels of the lines between cells.
  struct Look {
    QPoint Scrolled;
    QPalette Palette;
    int LineWidth = 1;
  };

  /// Paints the cells within `dirty` in a viewport of `size`.
  void PaintCells(QPainter& painter, const Look& look, QSize size, const QRect& dirty);

  /// Paints a cell's text, or its notes, over what is already there.
  void PaintText(QPainter& painter, const Look& look, const QRect& place, int row, int column);

  /// The colour of a cell's text; on the window's background, the window's text colour.
  static QColor TextColour(const Look& look, const Grid::Cell& cell);

 private:
  struct Block {
    int FirstRow, RowEnd, FirstColumn, ColumnEnd;
  };
  void PaintBlock(QPainter& painter, const Look& look, const QRect& area, const Block& block);
  void PaintBlockEdge(QPainter& painter, const Look& look, const QRect& cell, int row, int column);
  static void PaintWrongMark(QPainter& painter, const QRect& cell);
  const NoteText& Notes();
  CellText& TextsFor(const Grid::Cell& cell) { return cell.Given ? givens_ : texts_; }

  const Grid& grid_;
  QFont font_;
  int dpi_;
  double zoom_ = 1;
  mutable std::vector<int> edges_;  ///< by line, computed on demand
  CellText texts_;
  CellText givens_;                ///< in bold, for given numbers
  std::optional<NoteText> notes_;  ///< measured when the first notes are painted
};

}  // namespace numorra
