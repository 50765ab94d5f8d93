#pragma once

#include <cstdint>
#include <vector>

#include "app/board/quick_random.h"
#include "puzzle/candidates.h"

namespace numorra {

/// The missing numbers of a normal board, each in one of its gaps, and how wrong the lines are.
///
/// The cost is the sum over the lines of |what it adds up to - what it should|; the main diagonals
/// count three times, as few exchanges change them. At cost 0 the board is solved.
///
/// Where kinds pair cells, two gaps that are a line by themselves are partners. Their numbers are
/// complements from the start and move together, so that such lines are never wrong: the number of
/// rank r has that of rank Gaps() - 1 - r as its complement.
class Numbering {
 public:
  /// The gaps that the rules have left open.
  explicit Numbering(const Candidates& board);

  /// Whether all partners can have complements; where they cannot, there is no solution.
  bool IsPossible() const { return possible_; }

  /// Puts the numbers in at random.
  void Mix(QuickRandom& random);

  int Gaps() const { return static_cast<int>(numbers_.size()); }
  std::int64_t Cost() const { return cost_; }
  std::int64_t Error(int line) const { return errors_[At(line)]; }
  const LineMap& Map() const { return map_; }

  bool IsGap(int cell) const { return ranks_[At(cell)] >= 0; }
  const std::vector<int>& GapsOf(int line) const { return gapsOf_[At(line)]; }

  /// Ranks count the missing numbers, 0..Gaps() - 1 from the smallest on.
  int CellOf(int rank) const { return cells_[At(rank)]; }
  int RankOf(int cell) const { return ranks_[At(cell)]; }
  std::int64_t NumberOf(int cell) const { return numbers_[At(RankOf(cell))]; }

  /// Exchanges the numbers of two gaps, and those of their partners; the same again undoes it.
  void Exchange(int a, int b);

 private:
  static std::size_t At(int index) { return static_cast<std::size_t>(index); }

  void FindPartners();
  void Place(int cell, int rank);
  void Add(int cell, std::int64_t change);
  void ExchangeTwo(int a, int b);

  const LineMap& map_;
  bool possible_ = true;
  std::vector<std::int64_t> rests_;    ///< by line: what its gaps are to add up to
  std::vector<std::int64_t> errors_;   ///< by line: what its gaps have too much
  std::vector<std::int64_t> weights_;  ///< by line
  std::int64_t cost_ = 0;
  std::vector<std::int64_t> numbers_;     ///< by rank
  std::vector<int> cells_;                ///< by rank
  std::vector<int> ranks_;                ///< by cell; -1 where a number stands
  std::vector<int> partners_;             ///< by cell; empty where cells have none
  std::vector<std::vector<int>> gapsOf_;  ///< by line
};

}  // namespace numorra
