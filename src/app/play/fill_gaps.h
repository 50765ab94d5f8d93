#pragma once

#include "app/board/command_context.h"
#include "app/ports/work_stage.h"
#include "puzzle/search.h"

namespace numorra {

/// Time limits of a search, in seconds: the first, and the one after asking the player.
inline constexpr double kFirstSearch = 3;
inline constexpr double kLongSearch = 30;

/// Fills the board's gaps so that all lines are right by the board's rules; numbers that are there
/// stay. Says so if there are several solutions. If there is none, says so and names a single entry
/// or a full line that prevents one. Asks whether to continue if the search did not finish in time.
/// The board changes at the end or not at all. `limitToNine`: no number above 9, by the positive
/// rules. `kind`: what the full board must be besides magic.
void FillGaps(const CommandContext& context, bool limitToNine, WorkStage& stage,
              LineKind kind = LineKind::Magic);

/// Empties every cell that is not given, and removes the notes, to start a puzzle over or to enter
/// one. Keys reach the board afterwards.
void EmptyBoard(Board& board);

/// That nothing can fill the gaps, and why if `why` is not empty.
std::string NothingCanFill(const std::string& why);

/// Names the first full line with a wrong total, as "column 9 adds up to 135, not 369"; empty if
/// there is none.
std::string FullWrongLine(const Puzzle& puzzle);

/// The entries, among the cells that are not given, each of which alone leaves the puzzle without a
/// solution; only the first few.
std::vector<Place> EntriesInTheWay(const Puzzle& puzzle, const Square<bool>& givens, Random& random,
                                   Yielding& yielding);

}  // namespace numorra
