#pragma once

#include "app/board/command_context.h"
#include "app/ports/work_stage.h"
#include "puzzle/search.h"

namespace numorra {

/// How long gaps are searched for, in seconds: at first, and when the player wants to go on.
inline constexpr double kFirstSearch = 3;
inline constexpr double kLongSearch = 30;

/// Fills the board's gaps so that all lines are right by the board's rules; what stands in it
/// stays. Fills and says so when this is one of several ways; says when there is none, and which
/// entry alone, or which full line, is in the way; asks whether to go on when that was not settled
/// in time. The board changes at the end or not at all. `limitToNine`: no number above 9, by the
/// positive rules.
void FillGaps(const CommandContext& context, bool limitToNine, WorkStage& stage);

/// Empties every cell that is not given: to start a puzzle over, or to enter one. Keys reach the
/// board afterwards.
void EmptyBoard(Board& board);

/// The entries, of those that no given fixes, each of which alone leaves the puzzle without a
/// solution; the first that are found.
std::vector<Place> EntriesInTheWay(const Puzzle& puzzle, const Square<bool>& givens, Random& random,
                                   Yielding& yielding);

}  // namespace numorra
