#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "puzzle/kind_lines.h"

namespace numorra {

/// The cells of each line of a board, and the lines of each cell. Cells are indices in reading
/// order; lines are in the order of LinesOf, rows and columns first.
class LineMap {
 public:
  /// The map of an order and kind, created on first use; safe to call from any thread.
  static const LineMap& Of(int order, LineKind kind = LineKind::Magic);

  int Order() const { return order_; }
  int Lines() const { return static_cast<int>(lines_.size()); }
  std::string NameOf(int line) const { return numorra::NameOf(At(line), order_); }
  const std::vector<int>& CellsOf(int line) const { return At(line).Cells; }
  const std::vector<int>& LinesOf(int cell) const {
    return linesOf_[static_cast<std::size_t>(cell)];
  }

  /// The share of the total that a line adds up to; `IsWhole` says whether it is a whole number.
  std::int64_t SumOf(int line, std::int64_t total) const { return Share(line, total) / order_; }
  bool IsWhole(int line, std::int64_t total) const { return Share(line, total) % order_ == 0; }

 private:
  LineMap(int order, LineKind kind);

  const CellLine& At(int line) const { return lines_[static_cast<std::size_t>(line)]; }
  std::int64_t Share(int line, std::int64_t total) const {
    return total * static_cast<std::int64_t>(CellsOf(line).size());
  }

  int order_;
  std::vector<CellLine> lines_;
  std::vector<std::vector<int>> linesOf_;
};

}  // namespace numorra
