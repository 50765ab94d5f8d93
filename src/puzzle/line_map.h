#pragma once

#include <vector>

namespace numorra {

/// Which cells the 2n + 2 lines of a board have, and which lines a cell has: indices in reading
/// order, lines as MagicLines has them.
class LineMap {
 public:
  /// The one of an order, made when it is first asked for, in whichever thread.
  static const LineMap& Of(int order);

  int Lines() const { return static_cast<int>(cells_.size()); }
  const std::vector<int>& CellsOf(int line) const { return cells_[static_cast<std::size_t>(line)]; }
  const std::vector<int>& LinesOf(int cell) const { return lines_[static_cast<std::size_t>(cell)]; }

 private:
  explicit LineMap(int order);

  std::vector<std::vector<int>> cells_;
  std::vector<std::vector<int>> lines_;
};

}  // namespace numorra
