#pragma once

#include "app/play/hints.h"
#include "app/play/undo_history.h"

namespace numorra {

/// Undoes the steps back to the last board whose entries all agree with the only solution of the
/// givens, and says which entry came next and cannot stay. The undone steps can be redone.
///
/// Boards before a turn or a mirror are compared with the solution turned likewise. Nothing changes
/// if all entries are right, if the givens do not have exactly one solution, or if the history does
/// not reach back to a right board of the same puzzle.
Remark BackToLastRight(Board& board, UndoHistory& history, Random& random, WorkStage& stage);

}  // namespace numorra
