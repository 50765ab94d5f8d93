#include <algorithm>

#include <QPaintEvent>
#include <QPainter>

#include "app/window/board/grid_view.h"
#include "toolkit/colours.h"
#include "visual/outline.h"

namespace numorra {
namespace {

constexpr int kGuideAlpha = 36;  // of 255

QRect Inside(const QRect& frame, int width) {
  return frame.adjusted(width, width, -width, -width);
}

}  // namespace

void GridView::paintEvent(QPaintEvent* event) {
  grid_.TakeRepaint();
  UpdateScrollBars();
  QPainter painter(viewport());
  if (!grid_.Visible()) return PaintInvitation(painter);
  constexpr int kMostParts = 40;  // above it, painting everything at once is cheaper
  const QRegion& dirty = event->region();
  if (dirty.rectCount() > kMostParts) {
    painter_.PaintCells(painter, Look(), viewport()->size(), event->rect());
  } else {
    for (const QRect& part : dirty)
      painter_.PaintCells(painter, Look(), viewport()->size(), part);
  }
  if (CurrentInBlock()) {
    PaintGuides(painter);
    PaintCurrentCell(painter);
    TellCurrentCell();
  }
  PaintOutlined(painter);
}

/// An empty view explains how to fill it.
void GridView::PaintInvitation(QPainter& painter) {
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                   "Auto builds a magic square.\nManual lays out a board for you to solve.\n"
                   "F1 explains everything.");
}

/// Screen readers are told what is painted, so at most once per repaint.
void GridView::TellCurrentCell() {
  if (!hasFocus()) return;
  const ShownCell now{grid_.CurrentRow(), grid_.CurrentColumn(),
                      grid_.Text(grid_.CurrentRow(), grid_.CurrentColumn())};
  const bool another = !told_ || told_->Row != now.Row || told_->Column != now.Column;
  if (!another && told_->Text == now.Text) return;
  told_ = now;
  Q_EMIT CurrentCellShown(another);
}

QImage GridView::Picture() const {
  QImage picture(PictureSize(), QImage::Format_RGB32);
  picture.fill(palette().color(QPalette::Window));
  QPainter painter(&picture);
  PaintPicture(painter, palette());
  return picture;
}

QSize GridView::PictureSize() const {
  const GridPainter plain(grid_, font(), logicalDpiX());
  return {plain.Edge(grid_.Columns()), plain.Edge(grid_.Rows())};
}

void GridView::PaintPicture(QPainter& painter, const QPalette& palette) const {
  GridPainter plain(grid_, font(), logicalDpiX());
  const QSize size = PictureSize();
  plain.PaintCells(painter, {QPoint(), palette}, size, QRect(QPoint(), size));
}

bool GridView::CurrentInBlock() const {
  const auto inside = [](int line, int lines) {
    return line >= Grid::kFixedLines && line < lines - 1;
  };
  return inside(grid_.CurrentRow(), grid_.Rows()) && inside(grid_.CurrentColumn(), grid_.Columns());
}

/// Shows how the current row and column lead to their totals: plain cells are tinted, visible
/// totals get a frame in their text colour. Shaded cells show only their shade.
void GridView::PaintGuides(QPainter& painter) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  QColor tint = palette().color(QPalette::Highlight);
  tint.setAlpha(kGuideAlpha);
  const QRect scrolling = viewport()->rect().adjusted(painter_.Edge(Grid::kFixedLines),
                                                      painter_.Edge(Grid::kFixedLines), 0, 0);
  painter.setClipRect(scrolling);
  const auto tintCell = [&](int r, int c) {
    const QRect cell = CellRect(r, c);
    if (!grid_.Shaded(r, c) && cell.intersects(scrolling)) {
      painter.fillRect(cell.adjusted(0, 0, -1, -1), tint);
    }
  };
  for (int line = 1; line < grid_.Rows() - 1; ++line) {
    if (line != column) tintCell(row, line);
    if (line != row) tintCell(line, column);
  }
  const auto frameTotal = [&](int r, int c) {
    if (grid_.Text(r, c).empty()) return;
    const int width = std::max(1, painter_.Edge(1) / 24);
    const QRect frame = CellRect(r, c).adjusted(1, 1, -2, -2);
    const QColor colour = GridPainter::TextColour(Look(), grid_.At(r, c));
    for (const QRect& side : QRegion(frame) - Inside(frame, width))
      painter.fillRect(side, colour);
  };
  painter.setClipRect(QRect(0, scrolling.top(), scrolling.left(), scrolling.height()));
  frameTotal(row, 0);
  painter.setClipRect(QRect(scrolling.left(), 0, scrolling.width(), scrolling.top()));
  frameTotal(0, column);
}

/// The scrolling area and the line before it, on which frames may lie.
void GridView::ClipToScrollingCells(QPainter& painter) const {
  const int fixed = painter_.Edge(Grid::kFixedLines) - 1;
  painter.setClipRect(QRect(QPoint(fixed, fixed), viewport()->rect().bottomRight()));
}

void GridView::PaintOutlined(QPainter& painter) {
  ClipToScrollingCells(painter);
  PaintOutline(painter, grid_.Outlined(), [this](Place place) {
    return QRectF(CellRect(place.Row, place.Column).adjusted(0, 0, -1, -1));
  });
}

/// Repaints the current cell with a ring in the theme's highlight and a light ring inside, visible
/// on every colour. The number is painted over the rings, so that long ones stay readable.
void GridView::PaintCurrentCell(QPainter& painter) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  ClipToScrollingCells(painter);
  const QRect cell = CellRect(row, column);
  const QRect withItsLines = cell.adjusted(-1, -1, 0, 0);
  const int ring = std::max(2, painter_.Edge(1) / 16);
  painter.fillRect(withItsLines, palette().color(QPalette::Highlight));
  painter.fillRect(Inside(withItsLines, ring), Qt::white);
  painter.fillRect(Inside(withItsLines, ring + 1), ToQColor(grid_.Background(row, column)));
  painter_.PaintText(painter, Look(), cell, grid_.At(row, column));
}

}  // namespace numorra
