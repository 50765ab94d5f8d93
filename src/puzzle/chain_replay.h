#pragma once

#include <optional>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/candidates.h"
#include "puzzle/step.h"

namespace numorra {

using Chain = std::vector<Step>;

/// What a chain is to reach: a number in a gap, or the end of its trial.
enum class ChainGoal { Number, Refuted };

/// Makes moves on a board one after another, up to the goal, and returns the steps that they take
/// there. Moves that change nothing are left out, and so are those after a contradiction in a
/// trial, up to its Refute. Nothing if the goal is not reached. The board is as before afterwards.
std::optional<Chain> Replayed(Candidates& board, const std::vector<Move>& moves, ChainGoal goal);

/// Leaves out steps, and whole trials, first many at a time, until the goal is not reached without
/// any of those that remain. A number that was left for a gap in a step of its own is put there by
/// the step before that leaves it, if this is enough. Yields before every attempt.
Chain Shortened(Candidates& board, Chain chain, ChainGoal goal, Yielding& yielding);

}  // namespace numorra
