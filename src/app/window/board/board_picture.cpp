#include "app/window/board/board_picture.h"

#include <algorithm>

#include "app/window/board/grid_painter.h"

namespace numorra {

void PaintBoardPicture(QPainter& painter, const Grid& grid, const QFont& font,
                       const QPalette& palette, int side, bool totals) {
  constexpr int kDpi = 96;       // any: the zoom sets the size of the cells
  constexpr int kThinness = 64;  // a cell is as many times wider than its lines
  const int lines = totals ? grid.Columns() : grid.Columns() - 2;
  const int margin = qRound(side * kPictureMargin);
  const int width = std::max(1, (side - 2 * margin) / lines / kThinness);
  const int room = side - 2 * margin - (totals ? 0 : width);
  GridPainter cells(grid, font, kDpi);
  cells.SetZoom(cells.ZoomThatFits(lines, room));
  const int first = totals ? 0 : 1;
  const int start = cells.Edge(first);
  const int length = cells.Edge(first + lines) - start;
  const QRect area(start, start, length, length);

  painter.save();
  painter.translate(side - margin - length - start, side - margin - length - start);
  const QSize whole(cells.Edge(grid.Columns()), cells.Edge(grid.Rows()));
  cells.PaintCells(painter, {QPoint(), palette, width}, whole, area);
  painter.setClipping(false);
  // The lines above and before the numbers, which belong to the frame and leave out its corner.
  const QColor line = palette.color(QPalette::Mid);
  const int corner = cells.Edge(1) - width;
  const int numbers = cells.Edge(grid.Columns() - 1) - corner;
  painter.fillRect(corner, corner, numbers, width, line);
  painter.fillRect(corner, corner, width, numbers, line);
  painter.restore();
}

}  // namespace numorra
