#pragma once

#include <string>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "support/slow_checker.h"

namespace numorra {

inline constexpr const char* kDisagreement = "grid and values disagree";

/// What must hold for the board whatever has been done to it: empty, or what does not.
inline std::string WhyInvalid(const Board& board) {
  const Grid& grid = board.grid;
  if (grid.RedrawLocked()) return "the redraw lock is left over";
  if (board.BoardBusy || board.CheckRunning) return "a routine has not ended";
  if (!board.Shown()) return {};
  const int n = board.GridSize;
  if (grid.CurrentRow() < 1 || grid.CurrentRow() > n || grid.CurrentColumn() < 1 ||
      grid.CurrentColumn() > n) {
    return "the current cell is outside the value block";
  }
  const bool typed = board.TotalsChecked && !board.NewEntry;
  slow::Rows rows;
  for (int r = 1; r <= n; ++r) {
    rows.emplace_back();
    for (int c = 1; c <= n; ++c) {
      const bool typedHere = typed && r == grid.CurrentRow() && c == grid.CurrentColumn();
      const double shown = Val(grid.Text(r, c));
      if (!typedHere && shown != board.BoardValues(r, c)) return kDisagreement;
      rows.back().push_back(typedHere ? board.BoardValues(r, c) : shown);
    }
  }
  const auto totals = slow::LineTotals(rows);
  const auto judge = [&](int row, int column, double total) -> std::string {
    const std::string where = " at " + std::to_string(row) + ", " + std::to_string(column);
    if (Val(grid.Text(row, column)) != total) return "a total is not the sum" + where;
    const Colour colour = grid.Background(row, column);
    if (!board.TotalsChecked) {
      return colour == kWindowBackground ? "" : "a colour before any check" + where;
    }
    // Totals of boards that a generator showed after a check stay uncoloured.
    if (colour == kWindowBackground || board.UntouchedBase) return {};
    const bool right = total == board.TargetTotal;
    return colour == ColorTable[right ? kRightTotal : kWrongTotal] ? "" : "a wrong colour" + where;
  };
  std::string why;
  for (int i = 1; i <= n; ++i) {
    why += judge(i, 0, totals[static_cast<std::size_t>(i - 1)]);
    why += judge(0, i, totals[static_cast<std::size_t>(n + i - 1)]);
  }
  const auto size = static_cast<std::size_t>(n);
  why += judge(0, 0, totals[2 * size]);
  why += judge(0, n + 1, totals[2 * size + 1]);
  why += judge(n + 1, 0, totals[2 * size + 1]);
  return why;
}

}  // namespace numorra
