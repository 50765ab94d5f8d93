#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// Checks the totals after a move and restores the current cell.
void CheckAndReturn(Board& board, Dialogs& dialogs);

/// Whether the cell may be changed; tells the player if it is given.
bool MayChange(const Board& board, Dialogs& dialogs, int row, int column);

/// Writes `text` into the current cell and checks. A move that makes the board the untouched base
/// board is undone without a message; a given cell is refused.
void SetCurrentCell(Board& board, Dialogs& dialogs, const std::string& text);

/// Exchange two cells, two rows or two columns of the board, then check; the same line twice does
/// nothing. Return false if a given cell would move, which is refused.
bool SwapCells(Board& board, Dialogs& dialogs, int rowA, int columnA, int rowB, int columnB);
bool SwapRows(Board& board, Dialogs& dialogs, int a, int b);
bool SwapColumns(Board& board, Dialogs& dialogs, int a, int b);

}  // namespace numorra
