#include "app/board/totals_check.h"

#include "app/board/numbers.h"
#include "app/board/scoped_flag.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Reads the grid; if a number has changed, the player can be congratulated again.
void ReadChanges(Board& board) {
  const CellTable before = board.BoardValues;
  board.ReadGrid();
  ForEachCell(board.GridSize, [&](int row, int column) {
    if (board.BoardValues(row, column) != before(row, column)) board.WinTold = false;
  });
}

/// The number of gaps of each line, at the position of its total.
CellTable GapsOf(const Board& board) {
  CellTable gaps;
  ForEachCell(board.GridSize, [&](int row, int column) {
    gaps(row, column) = board.grid.At(row, column).IsGap() ? 1 : 0;
  });
  ComputeTotals(gaps, board.GridSize);
  return gaps;
}

}  // namespace

Finding Recount(Board& board) {
  Grid& grid = board.grid;
  const int last = board.GridSize + 1;
  const double target = board.TargetTotal;
  board.TotalsChecked = false;
  const ScopedFlag running(board.CheckRunning);
  const RedrawLock lock(grid);

  ReadChanges(board);
  bool changed = false;
  ForEachCell(board.GridSize, [&](int row, int column) {
    if (board.BoardValues(row, column) != board.BaseValue) changed = true;
  });
  board.ComputeTotals();
  const CellTable gaps = board.HasGivens() ? GapsOf(board) : CellTable();
  const bool quiet = board.QuietTotals && board.HasGaps();

  bool offTarget = false;
  bool unfinished = false;
  const auto judge = [&](int row, int column) {
    const double total = board.BoardValues(row, column);
    const bool right = total == target;
    grid.SetText(row, column, Decimal(total));
    if (gaps(row, column) > 0) {
      unfinished = true;
      grid.Judge(row, column, Verdict::Unjudged);
    } else {
      if (!right) offTarget = true;
      const Verdict verdict = right ? Verdict::Right : Verdict::Wrong;
      grid.Judge(row, column, quiet ? Verdict::Unjudged : verdict);
    }
  };
  for (int line = 1; line <= board.GridSize; ++line) {
    judge(line, 0);
    judge(0, line);
  }
  judge(0, last);
  judge(last, 0);
  judge(0, 0);
  grid.SetCurrent(0, 0);

  board.TotalsChecked = board.TotalsJudged = true;
  board.UntouchedBase = !changed;
  if (!changed && !quiet) board.MarkAllTotalsWrong();
  if (changed && !unfinished && !offTarget) return Finding::Right;
  board.WinTold = false;
  if (!changed) return Finding::UntouchedBase;
  return unfinished ? Finding::Unfinished : Finding::Wrong;
}

Finding CheckTotals(Board& board, Dialogs& dialogs) {
  ForEachCell(board.GridSize, [&](int row, int column) {
    if (board.grid.At(row, column).IsGap()) board.grid.SetText(row, column, "");
  });
  const Finding finding = Recount(board);
  if (finding == Finding::Right && !board.WinTold) {
    board.WinTold = true;
    dialogs.Tell(Say("WELL DONE, YOU GOT IT"));
  }
  return finding;
}

void RecountInPlace(Board& board) {
  const int row = board.grid.CurrentRow();
  const int column = board.grid.CurrentColumn();
  const bool typing = board.Typing();
  Recount(board);
  board.ReturnTo(row, column);
  if (typing) board.NewEntry = false;
}

void RefreshTotals(Board& board) {
  if (board.TotalsChecked) RecountInPlace(board);
}

}  // namespace numorra
