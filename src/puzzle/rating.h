#pragma once

#include "app/ports/yielding.h"
#include "puzzle/grade.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// How hard a puzzle is.
struct Rating {
  Grade Needed = Grade::Easy;  ///< the hardest rules that it needs
  int Steps = 0;               ///< how often these are needed
};

/// The trials after which a puzzle that is still unsolved counts as extreme.
inline constexpr std::int64_t kMostTrials = 20'000;

/// The rating of a puzzle that has one solution. `Steps` counts how often a rule of the grade has
/// to change the board if, before each time, the easier rules have done all they can: numbers put
/// into the last gap of a line (easy); lines of two gaps narrowed, and numbers placed (medium);
/// lines whose bounds narrowed their gaps (hard); numbers refuted by trials (expert); for an
/// extreme puzzle, the gaps that remain.
///
/// Yields at every trial.
Rating RatingOf(const Puzzle& puzzle, Yielding& yielding);

/// How many steps a rating is away from what is usual: a hard or expert puzzle should need its
/// rules 3 to 10 times. 0 for the other grades, which differ less.
int StepsOff(const Rating& rating);

/// Its grade alone, which takes less work.
Grade GradeOf(const Puzzle& puzzle, Yielding& yielding);

/// Whether the rules of a grade up to Hard solve the puzzle, which has a solution.
bool RulesSolve(const Puzzle& puzzle, Grade grade);

}  // namespace numorra
