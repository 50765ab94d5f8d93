#include "app/play/moves.h"

#include "app/board/totals_check.h"

namespace numorra {
void ExchangeTexts(Grid& grid, int rowA, int columnA, int rowB, int columnB) {
  std::string text = grid.Text(rowA, columnA);
  grid.SetText(rowA, columnA, grid.Text(rowB, columnB));
  grid.SetText(rowB, columnB, std::move(text));
}

void CheckAndReturn(Board& board, Dialogs& dialogs) {
  const int row = board.grid.CurrentRow();
  const int column = board.grid.CurrentColumn();
  CheckTotals(board, dialogs);
  board.ReturnTo(row, column);
}

void SetCurrentCell(Board& board, Dialogs& dialogs, const std::string& text) {
  const int row = board.grid.CurrentRow();
  const int column = board.grid.CurrentColumn();
  const std::string old = board.grid.Text(row, column);
  board.grid.SetText(row, column, text);
  CheckAndReturn(board, dialogs);
  if (!board.UntouchedBase) return;
  board.grid.SetText(row, column, old);
  CheckAndReturn(board, dialogs);
}

void SwapRows(Board& board, Dialogs& dialogs, int a, int b) {
  if (a == b) return;
  for (int j = 1; j <= board.GridSize; ++j)
    ExchangeTexts(board.grid, a, j, b, j);
  CheckAndReturn(board, dialogs);
}

void SwapColumns(Board& board, Dialogs& dialogs, int a, int b) {
  if (a == b) return;
  for (int i = 1; i <= board.GridSize; ++i)
    ExchangeTexts(board.grid, i, a, i, b);
  CheckAndReturn(board, dialogs);
}

}  // namespace numorra
