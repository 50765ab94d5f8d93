#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "puzzle/grade.h"

namespace numorra {

/// The rule that a step applies.
enum class StepRule : std::uint8_t {
  LastGap,       ///< the only gap of a line is what the line still needs
  TwoGaps,       ///< a number stays in one of two gaps if the other one can hold the rest
  AtLeast,       ///< a gap holds at least the line's need minus the largest sum of its other gaps
  AtMost,        ///< ... and at most the need minus their smallest sum
  OneCandidate,  ///< a gap has one number left
  OnePlace,      ///< a missing number fits one gap only
  FullLine,      ///< in a trial: a line is full, and its sum is wrong
  Suppose,       ///< a trial starts: a number is put into a gap
  Refute,        ///< a trial ends: the number cannot be there
  Search         ///< only a longer search shows the number
};

/// The numbers that a gap can hold.
struct Possible {
  std::int64_t Low = 1;  ///< above High if there are none
  std::int64_t High = 0;
  std::vector<std::int64_t> Listed = {};  ///< in ascending order; empty under the positive rules

  bool IsNone() const { return Low > High; }
  bool IsOne() const { return Low == High; }
  std::int64_t Count() const {
    return Listed.empty() ? High - Low + 1 : static_cast<std::int64_t>(Listed.size());
  }
  bool Has(std::int64_t number) const {
    return Listed.empty() ? number >= Low && number <= High
                          : std::binary_search(Listed.begin(), Listed.end(), number);
  }
};

/// What names a step: its rule and where it is applied.
struct Move {
  StepRule By = StepRule::LastGap;
  int Line = -1;  ///< of the rules about a line; -1 for the others
  int Cell = -1;  ///< the gap it is about; -1 for a full line, and for a number without a gap
  std::int64_t Number = 0;  ///< of OnePlace, Suppose, Refute and Search
  bool Puts = false;        ///< in a trial: fills the gap if it leaves one number
};

/// One step of a chain. It follows from the board and the steps before it: a gap can hold each
/// missing number (under the positive rules, each number up to the largest) but those that earlier
/// steps took away. A number that was put somewhere is no longer missing.
struct Step : Move {
  std::int64_t Sum = 0;     ///< what the gaps of the line must add up to; what a full line does
  std::int64_t Total = 0;   ///< what the whole line must add up to
  std::int64_t Others = 0;  ///< AtLeast, AtMost: the largest or smallest sum of the other gaps
  int Gaps = 0;             ///< of the line
  int OtherGap = -1;        ///< TwoGaps: the other one
  Possible Partner = {};    ///< TwoGaps: what the other one can hold
  Possible Left = {};       ///< what the gap can hold afterwards
  bool Supposed = false;    ///< whether it follows from the number that a trial supposes

  bool IsContradiction() const { return Left.IsNone(); }

  /// Whether the number is then taken as the gap's. A step about a line only narrows the gap,
  /// unless its move says otherwise.
  bool Fills() const {
    return Left.IsOne() && (Puts || By == StepRule::OneCandidate || By == StepRule::OnePlace ||
                            By == StepRule::Suppose);
  }
};

/// A number that follows from the others: what a hint shows. Its steps are in the order in which
/// they follow; the last one leaves only the number in the cell.
struct Deduction {
  int Cell = 0;
  std::int64_t Number = 0;
  Grade Needed = Grade::Easy;  ///< the easiest rules that find it
  std::vector<Step> Steps = {};
};

}  // namespace numorra
