#pragma once

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// What a totals check finds. Repeated, broken and negative numbers are all welcome: a board is
/// right when every line reaches the target and not every cell is still at the base value. A board
/// that has givens is unfinished while it has a gap.
enum class Finding { UntouchedBase, Unfinished, Right, Wrong };

/// The totals check without its message: reads the grid back into BoardValues, writes every total
/// and colours it by whether it equals TargetTotal. On a board that has givens, a line with a gap
/// stays unjudged. The untouched base board gets all totals but (0, 0) marked wrong. Leaves the
/// current cell at (0, 0), the total coloured last, and the redraw lock lifted.
Finding Recount(Board& board);

/// The totals check after a player's move: recounts, and congratulates when the board is right,
/// once on the same numbers. A sign without digits becomes a gap.
Finding CheckTotals(Board& board, Dialogs& dialogs);

/// Recounts without a word. The current cell stays, and what was typed into it and not yet left
/// stays so: it is checked when it is left.
void RecountInPlace(Board& board);

/// The same after a change that no player's move made: nothing is done unless an earlier check had
/// coloured the totals.
void RefreshTotals(Board& board);

}  // namespace numorra
