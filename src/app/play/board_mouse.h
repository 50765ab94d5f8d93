#pragma once

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

enum class PressedButton { Left, Right, Other };

/// What the window has to do after a mouse button was pressed on the board.
enum class PressOutcome {
  Nothing,        ///< the press was beside the board
  Done,           ///< a cell or line was remembered, or two lines swapped
  OpenMenu,       ///< the context menu is wanted on the current cell
  OpenShortMenu,  ///< the context menu without the commands that need a checked board
};

/// The mouse rules of the board.
///
/// Left: a value cell becomes current and is remembered for a swap, in the place of any marked
/// line; the frame's right column and bottom row mark a row or a column with an "X". Right: a value
/// cell becomes current and asks for the menu; the frame's right column and bottom row swap their
/// line with the marked one. Before the first check every press asks for the menu.
PressOutcome PressBoard(Board& board, Dialogs& dialogs, int row, int column, PressedButton button);

/// What can be marked by keys: the current cell, its row, or its column.
enum class MarkedLine { Cell, Row, Column };

/// The mouse's marks for the keyboard: a left press on the current cell, or on the mark of its row
/// or column; when another row or column is marked, the right press that swaps the two.
PressOutcome MarkByKey(Board& board, Dialogs& dialogs, MarkedLine line);

}  // namespace numorra
