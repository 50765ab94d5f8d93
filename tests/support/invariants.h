#pragma once

#include <string>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "support/paper.h"

namespace numorra {

/// What must hold for the board whatever has been done to it: empty, or what does not. Totals are
/// added up on paper, from what is shown.
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
  // A number that is being typed counts when its cell is left.
  const bool typing = board.TotalsChecked && !board.NewEntry;
  const auto counted = [&](int r, int c) {
    const bool here = typing && r == grid.CurrentRow() && c == grid.CurrentColumn();
    return here ? Decimal(board.BoardValues(r, c)) : grid.Text(r, c);
  };
  const bool judged = grid.VerdictOf(0, 0) != Verdict::Unjudged;
  if (judged && !board.TotalsChecked) return "a verdict before any check";
  const std::string target = Decimal(board.TargetTotal);
  std::string why;
  const auto judge = [&](int row, int column, auto cellAt) {
    std::vector<std::string> line;
    for (int i = 1; i <= n; ++i)
      line.push_back(cellAt(i));
    const std::string where = " at " + std::to_string(row) + ", " + std::to_string(column);
    const std::string sum = paper::Sum(line);
    const bool exact = DigitsOf(sum) <= 15 || sum.find('.') == std::string::npos;
    const std::string shown = grid.Text(row, column);
    if (exact && shown != sum) why += "a total is " + shown + ", the sum " + sum + where;
    const Verdict verdict = grid.VerdictOf(row, column);
    const bool untouched = board.UntouchedBase && (row != 0 || column != 0);
    const bool right = shown == target && !untouched;
    if (judged && verdict != (right ? Verdict::Right : Verdict::Wrong)) why += "not judged" + where;
    if (!judged && verdict != Verdict::Unjudged) why += "judged" + where;
    const Colour colour =
        !judged ? kWindowBackground : ColorTable[right ? kRightTotal : kWrongTotal];
    if (grid.Background(row, column) != colour) why += "a wrong colour" + where;
  };
  for (int i = 1; i <= n; ++i) {
    judge(i, 0, [&](int c) { return counted(i, c); });
    judge(0, i, [&](int r) { return counted(r, i); });
  }
  judge(0, 0, [&](int k) { return counted(k, k); });
  judge(0, n + 1, [&](int k) { return counted(k, n + 1 - k); });
  judge(n + 1, 0, [&](int k) { return counted(k, n + 1 - k); });
  return why;
}

}  // namespace numorra
