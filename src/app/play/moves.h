#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// Checks the totals after a move and makes the cell that was current so again.
void CheckAndReturn(Board& board, Dialogs& dialogs);

/// Writes `text` into the current cell and checks. A move that makes the board the untouched base
/// board is taken back without a word.
void SetCurrentCell(Board& board, Dialogs& dialogs, const std::string& text);

/// Exchanges the texts of two cells, without a check.
void ExchangeTexts(Grid& grid, int rowA, int columnA, int rowB, int columnB);

/// Exchange two rows or two columns of the board, then check; the same line twice does nothing.
void SwapRows(Board& board, Dialogs& dialogs, int a, int b);
void SwapColumns(Board& board, Dialogs& dialogs, int a, int b);

}  // namespace numorra
