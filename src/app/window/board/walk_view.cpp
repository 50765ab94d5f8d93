#include "app/window/board/walk_view.h"

#include <algorithm>

#include <QPaintEvent>
#include <QPainter>

#include "toolkit/tr.h"

namespace numorra {

WalkView::WalkView(Grid& grid, QWidget* parent) : GridView(grid, parent), grid_(grid), walk_(grid) {
  setObjectName("WalkBoard");
  setAccessibleName(Tr("Board of the walk"));
  SetFitting(true);
  grid_.OnRepaint = nullptr;  // it would repaint the whole grid
}

void WalkView::Begin(int order, std::vector<WalkStep> steps) {
  walk_.Begin(order, std::move(steps));
  viewport()->update();
  Q_EMIT StepShown();
}

void WalkView::GoTo(int step) {
  const std::vector<Grid::Cell> before = Snapshot();
  QRegion changed = Pointed();
  walk_.GoTo(step);
  changed += Pointed();
  std::size_t cell = 0;
  for (int row = 0; row < grid_.Rows(); ++row) {
    for (int column = 0; column < grid_.Columns(); ++column, ++cell) {
      const Grid::Cell& now = grid_.At(row, column);
      if (before[cell].Text == now.Text && before[cell].Judged == now.Judged) continue;
      changed += CellRect(row, column);
    }
  }
  viewport()->update(changed);
  const WalkStep* const done = walk_.Done();
  if (done && !done->Written.empty()) {
    const Place place = done->Written.front().first;
    BringIntoView(place.Row, place.Column);
  }
  Q_EMIT StepShown();
}

void WalkView::MoveTo(int row, int column) {
  const int last = grid_.Rows() - 2;
  grid_.SetCurrent(std::clamp(row, 1, last), std::clamp(column, 1, last));
  viewport()->update();
}

std::vector<Grid::Cell> WalkView::Snapshot() const {
  std::vector<Grid::Cell> cells;
  for (int row = 0; row < grid_.Rows(); ++row) {
    for (int column = 0; column < grid_.Columns(); ++column)
      cells.push_back(grid_.At(row, column));
  }
  return cells;
}

/// The area of the step's outline and arrow.
QRegion WalkView::Pointed() const {
  constexpr int kAround = 4;
  QRegion pointed;
  for (const Place place : grid_.Outlined())
    pointed += CellRect(place.Row, place.Column).adjusted(-kAround, -kAround, kAround, kAround);
  const WalkStep* const done = walk_.Done();
  if (done && done->Arrow) {
    const auto [from, to] = *done->Arrow;
    pointed += CellRect(from.Row, from.Column)
                   .united(CellRect(to.Row, to.Column))
                   .adjusted(-kAround, -kAround, kAround, kAround);
  }
  return pointed;
}

void WalkView::paintEvent(QPaintEvent* event) {
  GridView::paintEvent(event);
  const WalkStep* const done = walk_.Done();
  if (!done || !done->Arrow) return;
  const auto [from, to] = *done->Arrow;
  const QPointF start = QRectF(CellRect(from.Row, from.Column)).center();
  const QPointF end = QRectF(CellRect(to.Row, to.Column)).center();
  QLineF shaft(start, end);
  const double side = CellRect(1, 1).width();
  if (shaft.length() < 1) return;
  constexpr double kShort = 0.32;  // of a cell, cut from either end, so that numbers stay readable
  shaft = {shaft.pointAt(kShort * side / shaft.length()),
           shaft.pointAt(1 - kShort * side / shaft.length())};
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink(200, 90, 0);
  painter.setPen(QPen(ink, std::max(1.5, side / 16), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(shaft);
  const double head = std::max(4.0, side / 6);
  QLineF left = QLineF::fromPolar(head, shaft.angle() + 150).translated(shaft.p2());
  QLineF right = QLineF::fromPolar(head, shaft.angle() - 150).translated(shaft.p2());
  painter.drawLine(left);
  painter.drawLine(right);
}

}  // namespace numorra
