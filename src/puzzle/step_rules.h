#pragma once

#include <optional>
#include <vector>

#include "puzzle/candidates.h"
#include "puzzle/step.h"

namespace numorra {

/// What a move shows on this board; nothing if it changes nothing there, or does not apply.
std::optional<Step> Derive(const Candidates& board, const Move& move);

/// The rules of a line, for each of its gaps: LastGap, TwoGaps or, from Hard on, AtLeast and
/// AtMost; FullLine if it has none.
std::vector<Move> MovesOf(const Candidates& board, int line, Grade grade);

/// Narrows the gap down to what the step leaves. Suppose and, if they leave one number, steps that
/// put it also fill the gap.
void Commit(Candidates& board, const Step& step);

/// What a cell can hold.
Possible PossibleIn(const Candidates& board, int cell);

}  // namespace numorra
