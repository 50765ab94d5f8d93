#pragma once

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// The result of a totals check. Repeated, fractional and negative numbers are allowed: a board is
/// right if every line reaches the target and not every cell is still at the base value. A board
/// that has givens is unfinished while it has a gap.
enum class Finding { UntouchedBase, Unfinished, Right, Wrong };

/// The totals check without its message: reads the grid back into BoardValues, writes every total
/// and colours it by whether it equals TargetTotal. On a board with givens, a line with a gap stays
/// unjudged; with QuietTotals, so do all lines of a board with gaps. On the untouched base board,
/// all totals except (0, 0) are marked wrong. Leaves the
/// current cell at (0, 0), the total coloured last, and the redraw lock released.
Finding Recount(Board& board);

/// The totals check after a player's move: recounts, and congratulates once if the board is right;
/// after a change of the numbers, it can congratulate again. A sign without digits becomes a gap.
Finding CheckTotals(Board& board, Dialogs& dialogs);

/// Recounts without a message. The current cell stays, and text typed into it stays unchecked until
/// the player leaves it.
void RecountInPlace(Board& board);

/// The same after a change that was not a player's move: does nothing unless an earlier check had
/// coloured the totals.
void RefreshTotals(Board& board);

}  // namespace numorra
