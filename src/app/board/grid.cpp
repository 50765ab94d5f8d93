#include "app/board/grid.h"

#include <utility>

#include "app/board/cell_table.h"
#include "app/board/runtime_error.h"

namespace numorra {

// Room for the largest board is taken once, so that no board is lost half way for want of memory.
Grid::Grid() {
  cells_.reserve(static_cast<std::size_t>(CellTable::kSide) * CellTable::kSide);
}

void Grid::Reshape(int rows, int columns) {
  cells_.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), Cell{});
  rows_ = rows;
  columns_ = columns;
  currentRow_ = 0;
  currentColumn_ = 0;
  WantRepaint();
}

void Grid::SetText(int row, int column, std::string text) {
  At(row, column).Text = std::move(text);
  WantRepaint();
}

Colour Grid::Background(int row, int column) const {
  const Cell& cell = At(row, column);
  if (cell.Judged == Verdict::Unjudged) return cell.Background;
  return ColorTable[cell.Judged == Verdict::Right ? kRightTotal : kWrongTotal];
}

Colour Grid::Foreground(int row, int column) const {
  const Cell& cell = At(row, column);
  return cell.Judged == Verdict::Unjudged ? cell.Foreground : ColorTable[kTotalText];
}

void Grid::SetColours(int row, int column, Colour background, Colour foreground) {
  Cell& cell = At(row, column);
  cell.Background = background;
  cell.Foreground = foreground;
  cell.Shaded = false;
  cell.Judged = Verdict::Unjudged;
  WantRepaint();
}

void Grid::Shade(int row, int column, Colour shade, Colour ink) {
  SetColours(row, column, shade, ink);
  At(row, column).Shaded = true;
}

void Grid::Judge(int row, int column, Verdict verdict) {
  At(row, column).Judged = verdict;
  WantRepaint();
}

void Grid::SetGiven(int row, int column, bool given) {
  At(row, column).Given = given;
  WantRepaint();
}

void Grid::SetCurrent(int row, int column) {
  (void)At(row, column);
  if (row == currentRow_ && column == currentColumn_) return;
  if (OnLeaveCell) OnLeaveCell();
  currentRow_ = row;
  currentColumn_ = column;
  WantRepaint();
  if (OnCellChanged) OnCellChanged();
}

void Grid::SetVisible(bool visible) {
  visible_ = visible;
  WantRepaint();
}

void Grid::LockRedraw(bool on) {
  locked_ = on;
  if (!on && repaintWanted_ && OnRepaint) OnRepaint();
}

const Grid::Cell& Grid::At(int row, int column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
    throw RuntimeError(Fault::SubscriptOutOfRange);
  }
  return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                static_cast<std::size_t>(column)];
}

Grid::Cell& Grid::At(int row, int column) {
  return const_cast<Cell&>(std::as_const(*this).At(row, column));
}

void Grid::WantRepaint() {
  const bool first = !std::exchange(repaintWanted_, true);
  if (first && !locked_ && OnRepaint) OnRepaint();
}

}  // namespace numorra
