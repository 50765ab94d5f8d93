#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "app/board/quick_random.h"
#include "app/ports/yielding.h"
#include "count/fill_plan.h"

namespace numorra {

/// Finds every square of a wish by filling its gaps in the order of a plan. A number stays within
/// what the open lines through its cell still need: with k more gaps in a line, the rest of its sum
/// lies between the sums of the k smallest and the k largest numbers.
///
/// Terms are judged on full squares. Yields about every hundred thousand cells filled.
class FillSearch {
 public:
  /// The wish must have at most FillPlan::kMostGaps gaps.
  FillSearch(const CountWish& wish, Yielding& yielding);

  /// Calls `visit` with every square until it returns false.
  void Run(const std::function<bool(const Square<int>&)>& visit);

  /// What one random descent says about the whole search: estimates whose means are the number of
  /// squares and of cells filled.
  struct Descent {
    double Squares = 0;
    double Cells = 0;
  };

  /// Descends along choices drawn at random; a choice with probability p counts 1 / p times (Knuth
  /// 1975, "Estimating the efficiency of backtrack programs"). Two things make the estimates
  /// scatter less. A number is as probable as there are ways to complete the lines through its
  /// cell, each taken by itself; and the last choices are all tried.
  Descent DescendAtRandom(QuickRandom& random);

 private:
  bool Fill(std::size_t step);
  int RankFollowing(const FillStep& step) const;
  template <class Try>
  bool ForEachChoice(const FillStep& step, Try attempt) const;
  bool Put(const FillStep& step, int rank, std::size_t next);
  void Take(const FillStep& step, int rank);
  void TakeBack(const FillStep& step, int rank);
  double WaysAfter(const FillStep& step, int number) const;
  void CountWays();
  bool IsOrdered(const FillStep& step, int number) const;

  const CountWish& wish_;
  Yielding& yielding_;
  FillPlan plan_;
  const std::function<bool(const Square<int>&)>* visit_ = nullptr;
  Square<int> square_;
  std::vector<int> rankOf_;          ///< by number: its place in plan_.Numbers; -1 for givens
  std::vector<std::int64_t> rests_;  ///< by line: what is left for its gaps
  std::vector<std::int64_t> least_, most_;  ///< by k: sums of the k smallest and largest numbers
  std::vector<std::vector<double>> ways_;   ///< by k and sum: sets of k numbers; for descents
  std::uint64_t free_ = 0;                  ///< bit i: plan_.Numbers[i] is not used
  std::uint64_t filled_ = 0;                ///< cells, since the beginning
};

}  // namespace numorra
