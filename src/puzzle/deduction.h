#pragma once

#include <optional>

#include "app/ports/yielding.h"
#include "puzzle/puzzle.h"
#include "puzzle/step.h"

namespace numorra {

/// The next number that follows by the rules of a grade, using the easiest rules that give one,
/// with a short chain of steps from the puzzle as it stands (ChainFinder, TrialChainFinder).
/// Nothing if no rule gives one, if the numbers contradict each other, or if the chain would be too
/// long to find.
///
/// Yields at every round and trial; an exception thrown by a yield ends the search.
std::optional<Deduction> NextDeduction(const Puzzle& puzzle, Grade most, Yielding& yielding);

/// A number that only a longer search has found.
Deduction SearchedDeduction(int cell, std::int64_t number);

/// The next number of a puzzle with gaps, by the rules or else by a search that has found `solved`.
Deduction NextNumber(const Puzzle& puzzle, const Puzzle& solved, Yielding& yielding);

/// All numbers of a puzzle in an order in which each follows from the clues and those before it.
std::vector<Deduction> WayToSolve(Puzzle puzzle, const Puzzle& solved, Yielding& yielding);

}  // namespace numorra
