#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/candidates.h"

namespace numorra {

/// A number that follows from the others, and the reason: what a hint shows.
struct Deduction {
  int Cell = 0;
  std::int64_t Number = 0;
  Grade Needed = Grade::Easy;     ///< the easiest rules that find it
  std::vector<Place> Where = {};  ///< the line, or the cell, to look at
  std::string WhereName = {};     ///< "row 2"
  std::string Why = {};           ///< one sentence, without a capital or a full stop
};

/// The next number that follows by the rules of a grade, using the easiest rule that gives one;
/// nothing if no rule does, or if the numbers contradict each other. Expert tries numbers: it finds
/// a gap where all candidates but one lead to a contradiction by the hard rules.
///
/// Yields at every trial; an exception thrown by the yield ends the search.
std::optional<Deduction> NextDeduction(const Puzzle& puzzle, Grade most, Yielding& yielding);

/// The reason for a number that only trying has found.
std::string WhyTried(const Candidates& candidates, int cell, std::int64_t number);

}  // namespace numorra
