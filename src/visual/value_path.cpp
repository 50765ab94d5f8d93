#include "visual/value_path.h"

#include <algorithm>

#include "app/board/numbers.h"

namespace numorra {

std::vector<ValuedCell> ValuePath(const Board& board) {
  std::vector<ValuedCell> path;
  ForEachCell(board.GridSize, [&](int row, int column) {
    const Grid::Cell& cell = board.grid.At(row, column);
    if (!cell.IsGap()) path.push_back({row, column, Val(cell.Text)});
  });
  std::stable_sort(path.begin(), path.end(),
                   [](const ValuedCell& a, const ValuedCell& b) { return a.Value < b.Value; });
  return path;
}

}  // namespace numorra
