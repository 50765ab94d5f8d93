#include "app/board/totals_check.h"

#include "app/board/numbers.h"
#include "app/board/scoped_flag.h"

namespace numorra {

Finding Recount(Board& board) {
  Grid& grid = board.grid;
  const int last = board.GridSize + 1;
  const double target = board.TargetTotal;
  board.TotalsChecked = false;
  const ScopedFlag running(board.CheckRunning);
  const RedrawLock lock(grid);

  board.ReadGrid();
  bool changed = false;
  ForEachCell(board.GridSize, [&](int row, int column) {
    if (board.BoardValues(row, column) != board.BaseValue) changed = true;
  });
  board.ComputeTotals();

  bool offTarget = false;
  const auto judge = [&](int row, int column) {
    const double total = board.BoardValues(row, column);
    const bool right = total == target;
    if (!right) offTarget = true;
    grid.SetText(row, column, Decimal(total));
    grid.Judge(row, column, right ? Verdict::Right : Verdict::Wrong);
  };
  for (int line = 1; line <= board.GridSize; ++line) {
    judge(line, 0);
    judge(0, line);
  }
  judge(0, last);
  judge(last, 0);
  judge(0, 0);
  grid.SetCurrent(0, 0);

  board.TotalsChecked = true;
  board.UntouchedBase = !changed;
  if (!changed) {
    board.MarkAllTotalsWrong();
    return Finding::UntouchedBase;
  }
  return offTarget ? Finding::Wrong : Finding::Right;
}

Finding CheckTotals(Board& board, Dialogs& dialogs) {
  const Finding finding = Recount(board);
  if (finding == Finding::Right) dialogs.Tell("WELL DONE, YOU GOT IT");
  return finding;
}

void RefreshTotals(Board& board) {
  if (!board.TotalsChecked) return;
  const int row = board.grid.CurrentRow();
  const int column = board.grid.CurrentColumn();
  Recount(board);
  board.ReturnTo(row, column);
}

}  // namespace numorra
