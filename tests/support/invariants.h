#pragma once

#include <string>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "support/paper.h"

namespace numorra {

/// Checks what must hold for the board after any action: returns an empty text or what is wrong.
/// Totals are added in decimal, from what is shown.
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
  // A number that is being typed counts when its cell is left; its lines are judged then.
  const auto typedInto = [&](Place at) {
    return board.Typing() && at == Place{grid.CurrentRow(), grid.CurrentColumn()};
  };
  const bool judged = board.TotalsJudged;
  const bool puzzle = board.HasGivens();
  const bool quiet = board.QuietTotals && board.HasGaps();
  if (board.QuietTotals && board.Typing()) return {};  // whether it is full counts later, too
  if (judged && !board.TotalsChecked) return "a verdict before any check";
  const std::string target = Decimal(board.TargetTotal);
  std::string why;
  const auto judge = [&](int row, int column, auto placeAt) {
    std::vector<std::string> line;
    bool unfinished = false;
    for (int i = 1; i <= n; ++i) {
      const Place at = placeAt(i);
      if (typedInto(at)) return;
      const Grid::Cell& cell = grid.At(at.Row, at.Column);
      line.push_back(cell.Text);
      unfinished = unfinished || (puzzle && cell.IsGap());
    }
    const std::string where = " at " + std::to_string(row) + ", " + std::to_string(column);
    const std::string sum = paper::Sum(line);
    const bool exact = DigitsOf(sum) <= 15 || sum.find('.') == std::string::npos;
    const std::string shown = grid.Text(row, column);
    if (exact && shown != sum) why += "a total is " + shown + ", the sum " + sum + where;
    const Verdict verdict = grid.VerdictOf(row, column);
    const bool untouched = board.UntouchedBase && (row != 0 || column != 0);
    const bool right = shown == target && !untouched;
    const Verdict due = !judged || unfinished || quiet ? Verdict::Unjudged
                        : right                        ? Verdict::Right
                                                       : Verdict::Wrong;
    if (verdict != due) why += "wrongly judged" + where;
    const Colour colour = due == Verdict::Unjudged ? kWindowBackground
                                                   : ColorTable[right ? kRightTotal : kWrongTotal];
    if (grid.Background(row, column) != colour) why += "a wrong colour" + where;
  };
  for (int i = 1; i <= n; ++i) {
    judge(i, 0, [&](int c) { return Place{i, c}; });
    judge(0, i, [&](int r) { return Place{r, i}; });
  }
  judge(0, 0, [&](int k) { return Place{k, k}; });
  judge(0, n + 1, [&](int k) { return Place{k, n + 1 - k}; });
  judge(n + 1, 0, [&](int k) { return Place{k, n + 1 - k}; });
  return why;
}

}  // namespace numorra
