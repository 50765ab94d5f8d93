#include "app/window/board/grid_view.h"

#include <algorithm>
#include <cmath>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include "toolkit/colours.h"
#include "visual/outline.h"

namespace numorra {
namespace {

constexpr int kGuideAlpha = 36;  // of 255
constexpr double kLargestZoom = 8;

QRect Inside(const QRect& frame, int width) {
  return frame.adjusted(width, width, -width, -width);
}

MarkedLine LineMarkedWith(Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ShiftModifier)) return MarkedLine::Row;
  return modifiers.testFlag(Qt::ControlModifier) ? MarkedLine::Column : MarkedLine::Cell;
}

}  // namespace

GridView::GridView(Grid& grid, QWidget* parent)
    : QAbstractScrollArea(parent), grid_(grid), painter_(grid, font(), logicalDpiX()) {
  setObjectName("grid");
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setBackgroundRole(QPalette::Window);
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
  painter_.SetZoom(zoom);
  shape_.reset();
  UpdateScrollBars();
  ScrollTo({qRound((scrolled.x() + fixed.x()) * grown) - fixed.x(),
            qRound((scrolled.y() + fixed.y()) * grown) - fixed.y()});
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

/// Sets the largest zoom at which the last line still fits in the view.
void GridView::Fit() {
  const int lines = std::max(grid_.Rows(), grid_.Columns());
  if (lines == 0) return;
  const QSize room = maximumViewportSize();
  const int side = std::min(room.width(), room.height());
  painter_.SetZoom(std::min(kLargestZoom, painter_.ZoomThatFits(lines, side)));
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

bool GridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto cell = CellAt(help->pos());
    if (cell && !painter_.Readable(grid_.At(cell->y(), cell->x()))) {
      QToolTip::showText(help->globalPos(),
                         QString::fromStdString(grid_.Text(cell->y(), cell->x())), viewport());
    } else {
      QToolTip::hideText();
    }
    return true;
  }
  return QAbstractScrollArea::viewportEvent(event);
}

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

void GridView::mousePressEvent(QMouseEvent* event) {
  if (const auto cell = CellAt(event->position().toPoint())) {
    Q_EMIT CellPressed(cell->y(), cell->x(), event->button(), event->globalPosition().toPoint());
  }
}

void GridView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers();
  const bool command =
      modifiers.testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  // Alt steps on keyboards without a keypad; Shift+F10 serves those without a menu key.
  const bool steps = modifiers.testFlag(Qt::KeypadModifier);
  const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  const bool menu = event->key() == Qt::Key_F10 && modifiers.testFlag(Qt::ShiftModifier);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QString text = enter ? QString('\r') : event->text();
  const bool typed = !command && !text.isEmpty() && event->key() != Qt::Key_Escape &&
                     event->key() != Qt::Key_Delete;
  const bool board = grid_.Visible() && grid_.Rows() >= 3;
  event->accept();
  if (board && arrow && modifiers.testFlag(Qt::AltModifier)) {
    Q_EMIT KeypadPressed(event->key() == Qt::Key_Up ? 1 : -1);
    return;
  }
  if (board && Navigate(event->key(), modifiers.testFlag(Qt::ControlModifier))) return;
  if (board && event->key() == Qt::Key_Space) {
    Q_EMIT MarkWanted(LineMarkedWith(modifiers));
  } else if (board && menu) {
    Q_EMIT MenuWanted();
  } else if (board && steps && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus)) {
    Q_EMIT KeypadPressed(event->key() == Qt::Key_Plus ? 1 : -1);
  } else if (board && typed) {
    Q_EMIT CharacterTyped(text.front().unicode());
  } else {
    event->ignore();
  }
}

/// Whether the key moves the current cell.
bool GridView::Navigate(int key, bool toTheVeryEnd) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  const int lastRow = grid_.Rows() - 2;
  const int lastColumn = grid_.Columns() - 2;
  const int page = std::max(1, viewport()->height() / painter_.Edge(1) - Grid::kFixedLines - 1);
  switch (key) {
    case Qt::Key_Up:
      Q_EMIT CellWanted(row - 1, column);
      return true;
    case Qt::Key_Down:
      Q_EMIT CellWanted(row + 1, column);
      return true;
    case Qt::Key_Left:
      Q_EMIT CellWanted(row, column - 1);
      return true;
    case Qt::Key_Right:
      Q_EMIT CellWanted(row, column + 1);
      return true;
    case Qt::Key_Home:
      Q_EMIT CellWanted(toTheVeryEnd ? 1 : row, 1);
      return true;
    case Qt::Key_End:
      Q_EMIT CellWanted(toTheVeryEnd ? lastRow : row, lastColumn);
      return true;
    case Qt::Key_PageUp:
      Q_EMIT CellWanted(std::max(1, row - page), column);
      return true;
    case Qt::Key_PageDown:
      Q_EMIT CellWanted(std::min(lastRow, row + page), column);
      return true;
    default:
      return false;
  }
}

void GridView::wheelEvent(QWheelEvent* event) {
  const int turned = event->angleDelta().y();
  if (!event->modifiers().testFlag(Qt::ControlModifier) || turned == 0) {
    return QAbstractScrollArea::wheelEvent(event);
  }
  event->accept();
  turned_ += turned;
  for (constexpr int kNotch = 120; std::abs(turned_) >= kNotch;) {
    const int direction = turned_ > 0 ? 1 : -1;
    turned_ -= direction * kNotch;
    Q_EMIT ZoomWanted(direction, event->position().toPoint());
  }
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Keyboard || !grid_.Visible()) return;
  Q_EMIT MenuWanted();
}

void GridView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  told_.reset();
  viewport()->update();
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
  if (fitting_) Fit();
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
