#pragma once

#include <cstdint>
#include <functional>
#include <vector>

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

 private:
  bool Fill(std::size_t step);
  bool Choose(const FillStep& step, std::size_t next);
  bool Put(const FillStep& step, int rank, std::size_t next);
  void Note(int cell, int number, int sign);
  bool IsOrdered(const FillStep& step, int number) const;

  const CountWish& wish_;
  Yielding& yielding_;
  FillPlan plan_;
  const std::function<bool(const Square<int>&)>* visit_ = nullptr;
  Square<int> square_;
  std::vector<int> rankOf_;          ///< by number: its place in plan_.Numbers; -1 for givens
  std::vector<std::int64_t> rests_;  ///< by line: what is left for its gaps
  std::vector<std::int64_t> least_, most_;  ///< by k: sums of the k smallest and largest numbers
  std::uint64_t free_ = 0;                  ///< bit i: plan_.Numbers[i] is not used
  std::uint64_t filled_ = 0;                ///< cells, since the beginning
};

}  // namespace numorra
