#include "app/window/board/grid_view.h"

#include <algorithm>
#include <cmath>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include "app/board/note_ranges.h"

namespace numorra {
namespace {

constexpr double kLargestZoom = 8;

}  // namespace

GridView::GridView(Grid& grid, QWidget* parent)
    : QAbstractScrollArea(parent), grid_(grid), painter_(grid, font(), logicalDpiX()) {
  setObjectName("grid");
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setLayoutDirection(Qt::LeftToRight);  // squares run to the right in every language
  viewport()->setBackgroundRole(QPalette::Window);
  setAutoFillBackground(true);  // a fitted board leaves room around the viewport
  grid_.OnRepaint = [this] {
    UpdateScrollBars();
    viewport()->update();
  };
}

std::optional<QPoint> GridView::CellAt(QPoint point) const {
  if (!grid_.Visible()) return std::nullopt;
  const int row = painter_.LineAt(point.y(), verticalScrollBar()->value(), grid_.Rows());
  const int column = painter_.LineAt(point.x(), horizontalScrollBar()->value(), grid_.Columns());
  if (row < 0 || column < 0) return std::nullopt;
  return QPoint(column, row);
}

QRect GridView::CellRect(int row, int column) const {
  return painter_.CellRect(row, column, Scrolled());
}

QPoint GridView::Scrolled() const {
  return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void GridView::ScrollTo(QPoint scrolled) {
  horizontalScrollBar()->setValue(scrolled.x());
  verticalScrollBar()->setValue(scrolled.y());
}

GridPainter::Look GridView::Look() const {
  return {Scrolled(), palette()};
}

QPoint GridView::CurrentCellPosition() const {
  const QRect cell = CellRect(grid_.CurrentRow(), grid_.CurrentColumn());
  return viewport()->mapToGlobal(cell.center());
}

void GridView::SetZoom(double zoom, QPoint fixed) {
  fitting_ = false;
  const double grown = zoom / painter_.Zoom();
  const QPoint scrolled = Scrolled();
  const QPoint moved(viewportMargins().left(), viewportMargins().top());  // these end with fitting
  painter_.SetZoom(zoom);
  shape_.reset();
  UpdateScrollBars();
  ScrollTo({qRound((scrolled.x() + fixed.x()) * grown) - fixed.x() - moved.x(),
            qRound((scrolled.y() + fixed.y()) * grown) - fixed.y() - moved.y()});
  viewport()->update();
}

void GridView::SetZoom(double zoom) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  const QRect cell = CellRect(row, column);
  const bool inSight =
      grid_.Visible() && CurrentInBlock() && viewport()->rect().contains(cell.center());
  SetZoom(zoom, inSight ? cell.center() : viewport()->rect().center());
  if (inSight) BringIntoView(row, column);
}

void GridView::SetFitting(bool fitting) {
  fitting_ = fitting;
  shape_.reset();
  UpdateScrollBars();
  viewport()->update();
}

/// The largest zoom at which the last line still fits in the view.
double GridView::ZoomFor(QSize room) const {
  const int lines = std::max(grid_.Rows(), grid_.Columns());
  const int side = std::min(room.width(), room.height());
  return std::min(kLargestZoom, painter_.ZoomThatFits(lines, side));
}

QMargins GridView::MarginsAround(QSize table, QSize room) {
  const int left = std::max(0, (room.width() - table.width()) / 2);
  const int top = std::max(0, (room.height() - table.height()) / 2);
  return {left, top, left, top};
}

void GridView::Fit() {
  QMargins margins;
  if (grid_.Visible() && grid_.Rows() > 0) {
    const QSize room = maximumViewportSize().grownBy(viewportMargins());
    painter_.SetZoom(ZoomFor(room));
    margins = MarginsAround({painter_.Edge(grid_.Columns()), painter_.Edge(grid_.Rows())}, room);
  }
  if (margins != viewportMargins()) setViewportMargins(margins);
}

std::optional<QRect> GridView::FittedBlock(QSize room) const {
  if (!fitting_ || grid_.Rows() < 3) return std::nullopt;
  GridPainter fitted(grid_, font(), logicalDpiX());
  fitted.SetZoom(ZoomFor(room));
  const QMargins margins =
      MarginsAround({fitted.Edge(grid_.Columns()), fitted.Edge(grid_.Rows())}, room);
  const QPoint first(fitted.Edge(1), fitted.Edge(1));
  const QPoint end(fitted.Edge(grid_.Columns() - 1) - 1, fitted.Edge(grid_.Rows() - 1) - 1);
  return QRect(first, end).translated(margins.left(), margins.top());
}

void GridView::SetNoting(bool noting) {
  if (noting == noting_) return;
  noting_ = noting;
  viewport()->update();
}

void GridView::BringIntoView(int row, int column) {
  UpdateScrollBars();
  const auto bring = [this](QScrollBar* bar, int line, int length) {
    const int fixed = painter_.Edge(Grid::kFixedLines);
    if (line < Grid::kFixedLines) return;
    const int last = painter_.Edge(line + 1) - length;  // above `first` if no cell fits
    const int first = painter_.Edge(line) - fixed;
    bar->setValue(std::min(std::max(bar->value(), last), first));
  };
  bring(verticalScrollBar(), row, viewport()->height());
  bring(horizontalScrollBar(), column, viewport()->width());
}

QSize GridView::sizeHint() const {
  return {painter_.Edge(16), painter_.Edge(16)};
}

QString GridView::Tip(int row, int column) {
  std::string tip = TipOf ? TipOf(row, column) : std::string();
  if (tip.empty() && !painter_.Readable(row, column)) {
    tip = grid_.Text(row, column);
    if (tip.empty()) tip = RangesOf(grid_.NotesIn(row, column));
  }
  return QString::fromStdString(tip);
}

void GridView::resizeEvent(QResizeEvent* event) {
  shape_.reset();
  UpdateScrollBars();
  QAbstractScrollArea::resizeEvent(event);
}

void GridView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    painter_.SetFont(font());
  }
  QAbstractScrollArea::changeEvent(event);
}

void GridView::UpdateScrollBars() {
  const QSize shape = grid_.Visible() ? QSize(grid_.Columns(), grid_.Rows()) : QSize(0, 0);
  if (shape_ == shape) return;
  shape_ = shape;
  if (fitting_) {
    Fit();
  } else if (!viewportMargins().isNull()) {
    setViewportMargins({});
  }
  const QSize table(painter_.Edge(shape.width()), painter_.Edge(shape.height()));
  const QSize whole = maximumViewportSize();
  // A table that fits needs no scroll bars, even if each bar alone makes the other one necessary.
  const bool fits = table.boundedTo(whole) == table;
  const QSize room = fits ? whole : viewport()->size();
  const auto set = [this](QScrollBar* bar, int length, int seen) {
    bar->setRange(0, std::max(0, length - seen));
    bar->setPageStep(std::max(1, seen - painter_.Edge(Grid::kFixedLines)));
    bar->setSingleStep(painter_.Edge(1));
  };
  set(horizontalScrollBar(), table.width(), room.width());
  set(verticalScrollBar(), table.height(), room.height());
}

}  // namespace numorra
