#pragma once

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// What a totals check finds. Repeated, broken and negative numbers are all welcome: a board is
/// right when every line reaches the target and not every cell is still at the base value.
enum class Finding { UntouchedBase, Right, Wrong };

/// The totals check without its message: reads the grid back into BoardValues, writes every total
/// and colours it by whether it equals TargetTotal. The untouched base board gets all totals but
/// (0, 0) marked wrong. Leaves the current cell at (0, 0), the total coloured last, and the redraw
/// lock lifted.
Finding Recount(Board& board);

/// The totals check after a player's move: recounts, and congratulates when the board is right.
Finding CheckTotals(Board& board, Dialogs& dialogs);

/// Recounts after a change that no player's move made: nothing is done unless an earlier check had
/// coloured the totals, and the current cell stays.
void RefreshTotals(Board& board);

}  // namespace numorra
