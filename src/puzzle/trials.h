#pragma once

#include <cstdint>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/candidates.h"

namespace numorra {

/// Trials of one number at a time. A trial puts a number into a gap and applies the hard rules. If
/// they leave a line, a gap or a number no possibility, the number is refuted: it is removed from
/// the gap, and the hard rules go on from there. A trial never starts inside another one.
///
/// What trials and hard rules find in the end does not depend on the order of the trials. Under the
/// positive rules, only the ends of a gap's range are tried, one after another. Gaps with more
/// candidates than MostTried are left alone.
class Trials {
 public:
  /// The most candidates of a gap that is tried. A range that is longer would take too many trials.
  static std::int64_t MostTried(bool isNormal) {
    constexpr std::int64_t kNumbers = 100;
    constexpr std::int64_t kRange = 12;
    return isNormal ? kNumbers : kRange;
  }

  /// Works on `board` and yields at every trial; an exception thrown by a yield leaves the trial's
  /// numbers on the board. After `most` trials, it finds nothing more.
  Trials(Candidates& board, std::int64_t most, Yielding& yielding)
      : board_(board), left_(most), yielding_(yielding) {}

  /// Applies the hard rules; tries the candidates of these gaps, the fewest first, until no more
  /// can be refuted, or all of these cells are filled. False if the board contradicts itself.
  bool Run(const std::vector<int>& cells);

  /// The same for all cells of the board.
  bool Run();

  /// The number of candidates removed so far.
  int Refuted() const { return refuted_; }

 private:
  bool Refutes(int cell, std::int64_t number);
  bool TryCell(int cell);
  bool TryEnd(int cell, bool low);

  Candidates& board_;
  std::int64_t left_;
  Yielding& yielding_;
  int refuted_ = 0;
};

}  // namespace numorra
