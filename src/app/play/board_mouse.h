#pragma once

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

enum class PressedButton { Left, Right, Other };

/// The window's task after a press of a mouse button on the board.
enum class PressOutcome {
  Nothing,        ///< the press was beside the board
  Done,           ///< a cell or line was remembered, or two lines swapped
  OpenMenu,       ///< open the context menu on the current cell
  OpenShortMenu,  ///< open it without the commands that need a checked board
};

/// The mouse rules of the board.
///
/// Left: a value cell becomes current and is remembered for a swap, which replaces any marked line;
/// the frame's right column and bottom row mark a row or a column with an "X". Right: a value cell
/// becomes current and opens the menu; the frame's right column and bottom row swap their line with
/// the marked one. Before the first check every press opens the menu.
PressOutcome PressBoard(Board& board, Dialogs& dialogs, int row, int column, PressedButton button);

/// Whether the number of a cell can be dragged: keys act on the board, and the cell is no gap.
bool CanDrag(const Board& board, Place from);

/// Drops a number on another cell, which becomes current: the two are exchanged as "Swap value"
/// exchanges them, so that a number on a gap moves there. Beside the value block, nothing happens;
/// a given that would move is refused.
void DragCell(Board& board, Dialogs& dialogs, Place from, Place to);

/// What a key can mark: the current cell, its row, or its column.
enum class MarkedLine { Cell, Row, Column };

/// Does by key what the mouse does: a left press on the current cell, or on the mark of its row or
/// column; if another row or column is marked, the right press that swaps the two.
PressOutcome MarkByKey(Board& board, Dialogs& dialogs, MarkedLine line);

}  // namespace numorra
