#include "app/board/grid.h"

#include <algorithm>
#include <utility>

#include "app/board/cell_table.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

/// The index of a cell in reading order, in a table of rows x columns.
std::size_t IndexIn(int rows, int columns, int row, int column) {
  if (row < 0 || row >= rows || column < 0 || column >= columns) {
    throw RuntimeError(Fault::SubscriptOutOfRange);
  }
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
         static_cast<std::size_t>(column);
}

}  // namespace

// Reserves memory for the largest board, so that no board is lost halfway for lack of it.
Grid::Grid() {
  cells_.reserve(static_cast<std::size_t>(CellTable::kSide) * CellTable::kSide);
}

void Grid::Reshape(int rows, int columns) {
  cells_.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), Cell{});
  rows_ = rows;
  columns_ = columns;
  currentRow_ = 0;
  currentColumn_ = 0;
  outlined_.clear();
  repeated_.clear();
  notes_ = {};
  WantRepaint();
}

void Grid::SetText(int row, int column, std::string text) {
  Changed(row, column).Text = std::move(text);
  WantRepaint();
}

Colour Grid::Cell::Background() const {
  if (Judged == Verdict::Unjudged) return OwnBackground;
  return ColorTable[Judged == Verdict::Right ? kRightTotal : kWrongTotal];
}

Colour Grid::Cell::Foreground() const {
  return Judged == Verdict::Unjudged ? OwnForeground : ColorTable[kTotalText];
}

void Grid::SetColours(int row, int column, Colour background, Colour foreground) {
  Cell& cell = Changed(row, column);
  cell.OwnBackground = background;
  cell.OwnForeground = foreground;
  cell.Shaded = false;
  cell.Judged = Verdict::Unjudged;
  WantRepaint();
}

void Grid::Shade(int row, int column, Colour shade, Colour ink) {
  SetColours(row, column, shade, ink);
  Changed(row, column).Shaded = true;
}

void Grid::Judge(int row, int column, Verdict verdict) {
  Changed(row, column).Judged = verdict;
  WantRepaint();
}

void Grid::SetGiven(int row, int column, bool given) {
  Changed(row, column).Given = given;
  WantRepaint();
}

void Grid::SetOutlined(std::vector<Place> cells) {
  if (cells == outlined_) return;
  outlined_ = std::move(cells);
  WantRepaint();
}

void Grid::SetRepeated(std::vector<Place> cells) {
  if (cells == repeated_) return;
  repeated_ = std::move(cells);
  WantRepaint();
}

bool Grid::IsRepeated(int row, int column) const {
  return std::find(repeated_.begin(), repeated_.end(), Place{row, column}) != repeated_.end();
}

void Grid::SetNotes(Notes notes) {
  if (notes == notes_) return;
  notes_ = std::move(notes);
  WantRepaint();
}

void Grid::SetUnnoted(const NoteSet& numbers) {
  if (numbers == unnoted_) return;
  unnoted_ = numbers;
  if (!notes_.IsEmpty()) WantRepaint();
}

NoteSet Grid::NotesIn(int row, int column) const {
  const auto inBlock = [](int line, int lines) { return line >= 1 && line < lines - 1; };
  if (notes_.IsEmpty() || !inBlock(row, rows_) || !inBlock(column, columns_)) return {};
  if (!At(row, column).IsGap()) return {};
  return notes_[static_cast<int>(IndexOf({row, column}, rows_ - 2))] & ~unnoted_;
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
  return cells_[IndexIn(rows_, columns_, row, column)];
}

Grid::Cell& Grid::Changed(int row, int column) {
  return cells_[IndexIn(rows_, columns_, row, column)];
}

void Grid::WantRepaint() {
  const bool first = !std::exchange(repaintWanted_, true);
  if (first && !locked_ && OnRepaint) OnRepaint();
}

}  // namespace numorra
