#include "app/window/grid_view.h"

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

namespace numorra {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kGuideAlpha = 36;  // of 255
constexpr int kLowestDpi = 24;   // below it a cell would be no more than a dot

MarkedLine LineMarkedWith(Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ShiftModifier)) return MarkedLine::Row;
  return modifiers.testFlag(Qt::ControlModifier) ? MarkedLine::Column : MarkedLine::Cell;
}

}  // namespace

GridView::GridView(Grid& grid, QWidget* parent)
    : QAbstractScrollArea(parent), grid_(grid), dpi_(std::max(kLowestDpi, logicalDpiX())) {
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
  const int row = LineAt(point.y(), verticalScrollBar()->value(), grid_.Rows());
  const int column = LineAt(point.x(), horizontalScrollBar()->value(), grid_.Columns());
  if (row < 0 || column < 0) return std::nullopt;
  return QPoint(column, row);
}

QRect GridView::CellRect(int row, int column) const {
  const int top = Scrolled(row, verticalScrollBar()->value());
  const int left = Scrolled(column, horizontalScrollBar()->value());
  return {left, top, Edge(column + 1) - Edge(column), Edge(row + 1) - Edge(row)};
}

QPoint GridView::CurrentCellPosition() const {
  const QRect cell = CellRect(grid_.CurrentRow(), grid_.CurrentColumn());
  return viewport()->mapToGlobal(cell.center());
}

void GridView::BringIntoView(int row, int column) {
  UpdateScrollBars();
  const auto bring = [this](QScrollBar* bar, int line, int length) {
    const int fixed = Edge(Grid::kFixedLines);
    if (line < Grid::kFixedLines) return;
    bar->setValue(std::clamp(bar->value(), Edge(line + 1) - length, Edge(line) - fixed));
  };
  bring(verticalScrollBar(), row, viewport()->height());
  bring(horizontalScrollBar(), column, viewport()->width());
}

QSize GridView::sizeHint() const {
  return {Edge(16), Edge(16)};
}

bool GridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto cell = CellAt(help->pos());
    if (cell && !Texts().Readable(grid_.Text(cell->y(), cell->x()))) {
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
  if (!grid_.Visible()) return;
  QPainter painter(viewport());
  PaintCells(painter, viewport()->size(), event->rect());
  if (CurrentInBlock()) {
    PaintGuides(painter);
    PaintCurrentCell(painter);
    TellCurrentCell();
  }
}

/// What is told is what is painted, so once a repaint at most.
void GridView::TellCurrentCell() {
  if (!hasFocus()) return;
  const ShownCell now{grid_.CurrentRow(), grid_.CurrentColumn(),
                      grid_.Text(grid_.CurrentRow(), grid_.CurrentColumn())};
  const bool another = !told_ || told_->Row != now.Row || told_->Column != now.Column;
  if (!another && told_->Text == now.Text) return;
  told_ = now;
  Q_EMIT CurrentCellShown(another);
}

/// Paints the four blocks that scroll differently, as far as they lie in `dirty`.
void GridView::PaintCells(QPainter& painter, QSize size, const QRect& dirty) {
  constexpr int kFixed = Grid::kFixedLines;
  const int fixed = Edge(kFixed);
  const int rows = grid_.Rows();
  const int columns = grid_.Columns();
  const int width = size.width() - fixed;
  const int height = size.height() - fixed;
  const auto block = [&](const QRect& whole, int firstRow, int rowEnd, int firstColumn,
                         int columnEnd) {
    const QRect area = whole & dirty;
    if (!area.isEmpty()) PaintBlock(painter, area, firstRow, rowEnd, firstColumn, columnEnd);
  };
  block({fixed, fixed, width, height}, kFixed, rows, kFixed, columns);
  block({fixed, 0, width, fixed}, 0, kFixed, kFixed, columns);
  block({0, fixed, fixed, height}, kFixed, rows, 0, kFixed);
  block({0, 0, fixed, fixed}, 0, kFixed, 0, kFixed);
}

QImage GridView::Picture() {
  QImage picture(Edge(grid_.Columns()), Edge(grid_.Rows()), QImage::Format_RGB32);
  picture.fill(palette().color(QPalette::Window));
  const QSignalBlocker quietColumns(horizontalScrollBar());
  const QSignalBlocker quietRows(verticalScrollBar());
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
  QPainter painter(&picture);
  PaintCells(painter, picture.size(), picture.rect());
  horizontalScrollBar()->setValue(scrolled.x());
  verticalScrollBar()->setValue(scrolled.y());
  return picture;
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
  // Keyboards without a keypad step with Ctrl, and those without a menu key have Shift+F10.
  const bool steps = modifiers.testAnyFlags(Qt::KeypadModifier | Qt::ControlModifier);
  const bool menu = event->key() == Qt::Key_F10 && modifiers.testFlag(Qt::ShiftModifier);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QString text = enter ? QString('\r') : event->text();
  const bool typed = !command && !text.isEmpty() && event->key() != Qt::Key_Escape &&
                     event->key() != Qt::Key_Delete;
  const bool board = grid_.Visible() && grid_.Rows() >= 3;
  event->accept();
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

/// Whether the key is one that moves the current cell.
bool GridView::Navigate(int key, bool toTheVeryEnd) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  const int lastRow = grid_.Rows() - 2;
  const int lastColumn = grid_.Columns() - 2;
  const int page = std::max(1, viewport()->height() / Edge(1) - Grid::kFixedLines - 1);
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
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) texts_.reset();
  QAbstractScrollArea::changeEvent(event);
}

/// The pixel at which a line begins, unscrolled.
int GridView::Edge(int line) const {
  const auto index = static_cast<std::size_t>(line);
  while (edges_.size() <= index) {
    const auto next = static_cast<double>(edges_.size());
    edges_.push_back(static_cast<int>(std::lround(next * Grid::kCellTwips * dpi_ / kTwipsPerInch)));
  }
  return edges_[index];
}

/// The line drawn at a pixel; -1 beyond the last.
int GridView::LineAt(int position, int scrolled, int lines) const {
  if (position >= Edge(Grid::kFixedLines)) position += scrolled;
  auto line = std::max(0, static_cast<int>(position * kTwipsPerInch / dpi_ / Grid::kCellTwips));
  while (Edge(line + 1) <= position)
    ++line;
  while (line > 0 && Edge(line) > position)
    --line;
  return position >= 0 && line < lines ? line : -1;
}

int GridView::Scrolled(int line, int scrolled) const {
  return line < Grid::kFixedLines ? Edge(line) : Edge(line) - scrolled;
}

void GridView::UpdateScrollBars() {
  const QSize shape = grid_.Visible() ? QSize(grid_.Columns(), grid_.Rows()) : QSize(0, 0);
  if (shape_ == shape) return;
  shape_ = shape;
  const auto set = [this](QScrollBar* bar, int lines, int length) {
    bar->setRange(0, std::max(0, Edge(lines) - length));
    bar->setPageStep(std::max(1, length - Edge(Grid::kFixedLines)));
    bar->setSingleStep(Edge(1));
  };
  set(horizontalScrollBar(), shape.width(), viewport()->width());
  set(verticalScrollBar(), shape.height(), viewport()->height());
}

/// Paints the cells of one of the four blocks that scroll differently, as far as they lie in
/// `area`.
void GridView::PaintBlock(QPainter& painter, const QRect& area, int firstRow, int rowEnd,
                          int firstColumn, int columnEnd) {
  painter.setClipRect(area);
  const auto from = [](int line, int first) { return line < 0 ? first : std::max(line, first); };
  const auto upTo = [](int line, int end) { return line < 0 ? end : std::min(line + 1, end); };
  const int scrolledX = horizontalScrollBar()->value();
  const int scrolledY = verticalScrollBar()->value();
  const int top = from(LineAt(area.top(), scrolledY, grid_.Rows()), firstRow);
  const int bottom = upTo(LineAt(area.bottom(), scrolledY, grid_.Rows()), rowEnd);
  const int left = from(LineAt(area.left(), scrolledX, grid_.Columns()), firstColumn);
  const int right = upTo(LineAt(area.right(), scrolledX, grid_.Columns()), columnEnd);

  const QColor line = palette().color(QPalette::Mid);
  for (int row = top; row < bottom; ++row) {
    for (int column = left; column < right; ++column) {
      const QRect cell = CellRect(row, column);
      const Colour background = grid_.Background(row, column);
      if (!background.SeeThrough) {
        painter.fillRect(cell, line);
        painter.fillRect(cell.adjusted(0, 0, -1, -1), ToQColor(background));
      } else {
        PaintBlockEdge(painter, cell, row, column);
      }
      if (grid_.VerdictOf(row, column) == Verdict::Wrong) PaintWrongMark(painter, cell);
      const std::string& text = grid_.Text(row, column);
      if (text.empty()) continue;
      painter.setPen(TextColour(row, column));
      Texts().Draw(painter, cell, text);
    }
  }
}

/// A notch in the corner of a wrong total, for eyes that do not tell its colour from the right
/// ones'.
void GridView::PaintWrongMark(QPainter& painter, const QRect& cell) {
  const int side = cell.width() / 4;
  const QPoint corner = cell.topRight();
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(ColorTable[kTotalText]));
  painter.drawPolygon(QPolygon({corner, corner - QPoint(side, 0), corner + QPoint(0, side)}));
}

/// The block's upper and left edge run along the cells of the fixed lines.
void GridView::PaintBlockEdge(QPainter& painter, const QRect& cell, int row, int column) {
  painter.setPen(palette().color(QPalette::Mid));
  const bool above = row == 0 && column > 0 && column < grid_.Columns() - 1;
  const bool before = column == 0 && row > 0 && row < grid_.Rows() - 1;
  if (above) painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  if (before) painter.drawLine(cell.topRight(), cell.bottomRight());
}

bool GridView::CurrentInBlock() const {
  const auto inside = [](int line, int lines) {
    return line >= Grid::kFixedLines && line < lines - 1;
  };
  return inside(grid_.CurrentRow(), grid_.Rows()) && inside(grid_.CurrentColumn(), grid_.Columns());
}

/// Leads the eye along the current row and column to their totals: plain cells are tinted, totals
/// get a frame in the colour of their text. Shaded cells show their shade and nothing else.
void GridView::PaintGuides(QPainter& painter) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  QColor tint = palette().color(QPalette::Highlight);
  tint.setAlpha(kGuideAlpha);
  const QRect scrolling =
      viewport()->rect().adjusted(Edge(Grid::kFixedLines), Edge(Grid::kFixedLines), 0, 0);
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
  painter.setBrush(Qt::NoBrush);
  const auto frameTotal = [&](int r, int c) {
    painter.setPen(QPen(TextColour(r, c), 1));
    painter.drawRect(CellRect(r, c).adjusted(1, 1, -3, -3));
  };
  painter.setClipRect(QRect(0, scrolling.top(), scrolling.left(), scrolling.height()));
  frameTotal(row, 0);
  painter.setClipRect(QRect(scrolling.left(), 0, scrolling.width(), scrolling.top()));
  frameTotal(0, column);
}

/// Cells of the window's background have its text colour too.
QColor GridView::TextColour(int row, int column) const {
  return grid_.Background(row, column).SeeThrough ? palette().color(QPalette::WindowText)
                                                  : ToQColor(grid_.Foreground(row, column));
}

/// The current cell anew, in a ring of the theme's highlight with a light one inside, to be seen on
/// every colour. The number lies over the rings, so that long ones stay readable.
void GridView::PaintCurrentCell(QPainter& painter) {
  const int row = grid_.CurrentRow();
  const int column = grid_.CurrentColumn();
  const int fixed = Edge(Grid::kFixedLines) - 1;
  painter.setClipRect(QRect(QPoint(fixed, fixed), viewport()->rect().bottomRight()));
  const QRect cell = CellRect(row, column);
  const QRect edge = cell.adjusted(0, 0, -1, -1);
  painter.setBrush(ToQColor(grid_.Background(row, column)));
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(edge);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Qt::white);
  painter.drawRect(edge.adjusted(1, 1, -2, -2));
  painter.setPen(ToQColor(grid_.Foreground(row, column)));
  Texts().Draw(painter, cell, grid_.Text(row, column));
}

CellText& GridView::Texts() {
  if (!texts_) texts_.emplace(font(), Edge(1));
  return *texts_;
}

}  // namespace numorra
