#include <algorithm>

#include <QPaintEvent>
#include <QPainter>

#include "app/window/board/grid_view.h"
#include "toolkit/colours.h"
#include "toolkit/tr.h"
#include "visual/outline.h"

namespace numorra {
namespace {

constexpr int kGuideAlpha = 36;  // of 255
constexpr QColor kEqualSign(190, 0, 0);

QRect Inside(const QRect& frame, int width) {
  return frame.adjusted(width, width, -width, -width);
}

/// Breaks a ring of this width into dashes.
void PaintDashes(QPainter& painter, const QRect& ring, int width) {
  for (int at = 0; at < ring.width(); at += 4 * width) {
    const QRect column(ring.left() + at + width, ring.top(), 2 * width, ring.height());
    const QRect row(ring.left(), ring.top() + at + width, ring.width(), 2 * width);
    painter.fillRect(column & ring, Qt::white);
    painter.fillRect(row & ring, Qt::white);
  }
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
  PaintRepeated(painter);
  PaintOutlined(painter);
}

/// An empty view explains how to fill it.
void GridView::PaintInvitation(QPainter& painter) {
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                   Tr("Auto builds a magic square.\nManual lays out a board for you to solve.\n"
                      "F1 explains everything."));
}

/// Screen readers are told what is painted, so at most once per repaint.
void GridView::TellCurrentCell() {
  if (!hasFocus()) return;
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  const ShownCell now{row, column, grid_.Text(row, column), grid_.IsRepeated(row, column),
                      grid_.NotesIn(row, column)};
  const bool another = !told_ || told_->Row != now.Row || told_->Column != now.Column;
  if (told_ == now) return;
  told_ = now;
  Q_EMIT CurrentCellShown(another);
}

QImage GridView::Picture() const {
  GridPainter plain(grid_, font(), logicalDpiX());
  const QRect whole(0, 0, plain.Edge(grid_.Columns()), plain.Edge(grid_.Rows()));
  QImage picture(whole.size(), QImage::Format_RGB32);
  picture.fill(palette().color(QPalette::Window));
  QPainter painter(&picture);
  plain.PaintCells(painter, {QPoint(), palette()}, whole.size(), whole);
  return picture;
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

/// An equals sign in the upper left corner, for players who cannot see a colour.
void GridView::PaintRepeated(QPainter& painter) {
  ClipToScrollingCells(painter);
  constexpr int kBarsOfCell = 3;
  constexpr int kThicknessOfCell = 13;
  const int width = painter_.Edge(1) / kBarsOfCell;
  const int thick = std::max(1, painter_.Edge(1) / kThicknessOfCell);
  const int apart = thick + std::max(1, thick * 2 / 3);
  for (const Place place : grid_.Repeated()) {
    const QPoint corner = CellRect(place.Row, place.Column).topLeft() + QPoint(2, 2);
    const QRect sign(corner, QSize(width, apart + thick));
    painter.fillRect(sign.adjusted(-1, -1, 1, 1), Qt::white);
    for (const int down : {0, apart}) {
      const QPoint start = corner + QPoint(0, down);
      painter.fillRect(QRect(start, QSize(width, thick)), kEqualSign);
    }
  }
}

void GridView::PaintOutlined(QPainter& painter) {
  ClipToScrollingCells(painter);
  PaintOutline(painter, grid_.Outlined(), [this](Place place) {
    return QRectF(CellRect(place.Row, place.Column).adjusted(0, 0, -1, -1));
  });
}

/// Repaints the current cell with a ring in the theme's highlight and a light ring inside, visible
/// on every colour; the outer ring is dashed while notes are taken. The number is painted over the
/// rings, so that long ones stay readable.
void GridView::PaintCurrentCell(QPainter& painter) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  ClipToScrollingCells(painter);
  const QRect cell = CellRect(row, column);
  const QRect withItsLines = cell.adjusted(-1, -1, 0, 0);
  const int ring = std::max(2, painter_.Edge(1) / 16);
  painter.fillRect(withItsLines, palette().color(QPalette::Highlight));
  if (noting_) PaintDashes(painter, withItsLines, ring);
  painter.fillRect(Inside(withItsLines, ring), Qt::white);
  painter.fillRect(Inside(withItsLines, ring + 1), ToQColor(grid_.Background(row, column)));
  painter_.PaintText(painter, Look(), cell, row, column);
}

}  // namespace numorra
