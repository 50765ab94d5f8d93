#pragma once

#include <cstdint>
#include <vector>

#include "app/board/quick_random.h"
#include "puzzle/candidates.h"

namespace numorra {

/// The missing numbers of a normal board, each in one of its gaps, and the error of each line.
///
/// The cost is the sum over the lines of |actual sum - required sum|; the main diagonals count
/// three times, because few exchanges change them. At cost 0 the board is solved.
///
/// If the kind pairs cells, two gaps that form a line are partners. Their numbers are complements
/// from the start and move together, so these lines are always right: the numbers of ranks r and
/// Gaps() - 1 - r are complements.
class Numbering {
 public:
  /// Takes the gaps that the rules have left open.
  explicit Numbering(const Candidates& board);

  /// Whether all partners can have complements; if not, there is no solution.
  bool IsPossible() const { return possible_; }

  /// Puts the numbers into the gaps at random.
  void Mix(QuickRandom& random);

  int Gaps() const { return static_cast<int>(numbers_.size()); }
  std::int64_t Cost() const { return cost_; }
  std::int64_t Error(int line) const { return errors_[At(line)]; }
  const LineMap& Map() const { return map_; }

  bool IsGap(int cell) const { return ranks_[At(cell)] >= 0; }
  const std::vector<int>& GapsOf(int line) const { return gapsOf_[At(line)]; }

  /// The rank of a missing number is its place in ascending order, 0..Gaps() - 1.
  int CellOf(int rank) const { return cells_[At(rank)]; }
  int RankOf(int cell) const { return ranks_[At(cell)]; }
  std::int64_t NumberOf(int cell) const { return numbers_[At(RankOf(cell))]; }

  /// Exchanges the numbers of two gaps, and those of their partners; repeating it undoes it.
  void Exchange(int a, int b);

 private:
  static std::size_t At(int index) { return static_cast<std::size_t>(index); }

  void FindPartners();
  void Place(int cell, int rank);
  void Add(int cell, std::int64_t change);
  void ExchangeTwo(int a, int b);

  const LineMap& map_;
  bool possible_ = true;
  std::vector<std::int64_t> rests_;    ///< by line: required sum of its gaps
  std::vector<std::int64_t> errors_;   ///< by line: sum of its gaps minus the required sum
  std::vector<std::int64_t> weights_;  ///< by line
  std::int64_t cost_ = 0;
  std::vector<std::int64_t> numbers_;     ///< by rank
  std::vector<int> cells_;                ///< by rank
  std::vector<int> ranks_;                ///< by cell; -1 if it is not a gap
  std::vector<int> partners_;             ///< by cell; empty if cells have none
  std::vector<std::vector<int>> gapsOf_;  ///< by line
};

}  // namespace numorra
