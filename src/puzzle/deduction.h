#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/candidates.h"

namespace numorra {

/// A number that follows from the others, and why: what a hint shows.
struct Deduction {
  int Cell = 0;
  std::int64_t Number = 0;
  Grade Needed = Grade::Easy;     ///< the easiest rules that find it
  std::vector<Place> Where = {};  ///< the line, or the cell, to look at
  std::string WhereName = {};     ///< "row 2"
  std::string Why = {};           ///< one sentence, without its capital and its stop
};

/// The next number that the rules of a grade give, by the easiest of them that give any; nothing
/// when they give none, or contradict each other. Expert gives what trying gives: a gap of which
/// all numbers but one lead, by the hard rules, to a contradiction.
///
/// The yielding is yielded to at every trial; what it throws ends it.
std::optional<Deduction> NextDeduction(const Puzzle& puzzle, Grade most, Yielding& yielding);

/// What is said of a number that trying alone has found.
std::string WhyTried(const Candidates& candidates, int cell, std::int64_t number);

/// "easy", "medium", "hard", "expert"; and back, nothing for other words.
const char* NameOf(Grade grade);
std::optional<Grade> GradeNamed(const std::string& name);

/// The rules that a grade adds to those before it, in words.
const char* RulesOf(Grade grade);

}  // namespace numorra
