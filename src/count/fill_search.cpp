#include "count/fill_search.h"

#include <algorithm>
#include <bit>

namespace numorra {
namespace {

std::size_t AtIndex(std::int64_t index) {
  return static_cast<std::size_t>(index);
}

}  // namespace

FillSearch::FillSearch(const CountWish& wish, Yielding& yielding)
    : wish_(wish),
      yielding_(yielding),
      plan_(wish),
      square_(wish.Givens),
      rankOf_(AtIndex(wish.Givens.Size()) + 1, -1),
      rests_(plan_.Rests),
      least_(1),
      most_(1) {
  const auto count = static_cast<int>(plan_.Numbers.size());
  for (int rank = 0; rank < count; ++rank) {
    rankOf_[AtIndex(plan_.Numbers[AtIndex(rank)])] = rank;
    free_ |= std::uint64_t{1} << rank;
    least_.push_back(least_.back() + plan_.Numbers[AtIndex(rank)]);
    most_.push_back(most_.back() + plan_.Numbers[AtIndex(count - 1 - rank)]);
  }
}

void FillSearch::Run(const std::function<bool(const Square<int>&)>& visit) {
  visit_ = &visit;
  if (plan_.Possible) Fill(0);
}

FillSearch::Descent FillSearch::DescendAtRandom(QuickRandom& random) {
  constexpr std::ptrdiff_t kMostTried = 6;
  constexpr std::ptrdiff_t kShareTried = 3;
  Descent descent;
  if (!plan_.Possible) return descent;
  auto choices = std::count_if(plan_.Steps.begin(), plan_.Steps.end(),
                               [](const FillStep& step) { return !step.Follows; });
  const auto tried = std::min(kMostTried, choices / kShareTried);
  if (ways_.empty()) CountWays();
  double weight = 1;
  std::vector<int> ranks;
  std::vector<double> chances;  // of the ranks, up to each
  std::vector<int> taken;       // the rank of each step so far
  while (choices > tried) {
    const FillStep& step = plan_.Steps[taken.size()];
    int rank = -1;
    if (step.Follows) {
      rank = RankFollowing(step);
    } else {
      --choices;
      ranks.clear();
      chances.assign(1, 0);
      ForEachChoice(step, [&](int choice) {
        ranks.push_back(choice);
        chances.push_back(chances.back() + WaysAfter(step, plan_.Numbers[AtIndex(choice)]));
        return true;
      });
      const double all = chances.back();
      if (all <= 0) break;
      const auto drawn = std::upper_bound(chances.begin(), chances.end() - 1, random.Share() * all);
      rank = ranks[AtIndex(drawn - chances.begin() - 1)];
      weight *= all / (*drawn - *(drawn - 1));
    }
    if (rank < 0) break;
    descent.Cells += weight;
    Take(step, rank);
    taken.push_back(rank);
  }
  if (choices <= tried) {
    std::int64_t found = 0;
    const std::function<bool(const Square<int>&)> count = [&](const Square<int>&) {
      ++found;
      return true;
    };
    visit_ = &count;
    const std::uint64_t before = filled_;
    Fill(taken.size());
    descent.Squares = weight * static_cast<double>(found);
    descent.Cells += weight * static_cast<double>(filled_ - before);
  }
  for (; !taken.empty(); taken.pop_back())
    TakeBack(plan_.Steps[taken.size() - 1], taken.back());
  return descent;
}

/// False if the search is to stop.
bool FillSearch::Fill(std::size_t step) {
  constexpr std::uint64_t kYieldEvery = 1U << 17U;
  if (++filled_ % kYieldEvery == 0) yielding_.Yield();
  if (step == plan_.Steps.size()) return !wish_.Meets(square_) || (*visit_)(square_);
  const FillStep& next = plan_.Steps[step];
  if (next.Follows) {
    const int rank = RankFollowing(next);
    return rank < 0 || Put(next, rank, step + 1);
  }
  return ForEachChoice(next, [&](int rank) { return Put(next, rank, step + 1); });
}

/// The number that follows for a cell, by its rank; -1 if it is not free.
int FillSearch::RankFollowing(const FillStep& step) const {
  std::int64_t number = step.Constant;
  for (const auto& [cell, factor] : step.Terms)
    number += factor * square_[cell];
  if (step.Divisor != 1) {
    if (number % step.Divisor != 0) return -1;
    number /= step.Divisor;
  }
  if (number < 1 || number > square_.Size()) return -1;
  const int rank = rankOf_[AtIndex(number)];
  const bool fits =
      rank >= 0 && (free_ >> rank & 1U) != 0 && IsOrdered(step, static_cast<int>(number));
  return fits ? rank : -1;
}

/// Calls attempt(rank) for every number that the step can choose, until it returns false.
template <class Try>
bool FillSearch::ForEachChoice(const FillStep& step, Try attempt) const {
  std::int64_t low = 1;
  std::int64_t high = square_.Size();
  for (const OpenLine& limit : step.Limits) {
    low = std::max(low, rests_[AtIndex(limit.Line)] - most_[AtIndex(limit.OpenAfter)]);
    high = std::min(high, rests_[AtIndex(limit.Line)] - least_[AtIndex(limit.OpenAfter)]);
  }
  for (std::uint64_t left = free_; left != 0; left &= left - 1) {
    const int rank = std::countr_zero(left);
    const int number = plan_.Numbers[AtIndex(rank)];
    if (number < low || number > high || !IsOrdered(step, number)) continue;
    if (!attempt(rank)) return false;
  }
  return true;
}

bool FillSearch::Put(const FillStep& step, int rank, std::size_t next) {
  Take(step, rank);
  const bool goesOn = Fill(next);
  TakeBack(step, rank);
  return goesOn;
}

void FillSearch::Take(const FillStep& step, int rank) {
  const int number = plan_.Numbers[AtIndex(rank)];
  free_ ^= std::uint64_t{1} << rank;
  for (const int line : plan_.LinesOf[AtIndex(step.Cell)])
    rests_[AtIndex(line)] -= number;
  square_[step.Cell] = number;
}

void FillSearch::TakeBack(const FillStep& step, int rank) {
  const int number = plan_.Numbers[AtIndex(rank)];
  free_ ^= std::uint64_t{1} << rank;
  for (const int line : plan_.LinesOf[AtIndex(step.Cell)])
    rests_[AtIndex(line)] += number;
}

/// The product, over the lines through the cell, of the ways to fill their other gaps, if the cell
/// holds the number.
double FillSearch::WaysAfter(const FillStep& step, int number) const {
  double ways = 1;
  for (const OpenLine& limit : step.Limits) {
    const std::int64_t rest = rests_[AtIndex(limit.Line)] - number;
    if (limit.OpenAfter == 1) {
      const int rank = rest == number ? -1 : rankOf_[AtIndex(rest)];
      if (rank < 0 || (free_ >> rank & 1U) == 0) return 0;
    } else if (limit.OpenAfter > 1) {
      ways *= ways_[AtIndex(limit.OpenAfter)][AtIndex(rest)];
    }
  }
  return ways;
}

void FillSearch::CountWays() {
  std::int64_t most = 0;
  std::size_t longest = 0;
  for (const FillStep& step : plan_.Steps) {
    for (const OpenLine& limit : step.Limits)
      longest = std::max(longest, AtIndex(limit.OpenAfter));
  }
  for (const std::int64_t rest : plan_.Rests)
    most = std::max(most, rest);
  ways_.assign(longest + 1, std::vector<double>(AtIndex(most) + 1));
  ways_[0][0] = 1;
  for (const int number : plan_.Numbers) {
    for (std::size_t k = longest; k > 0; --k) {
      for (std::int64_t sum = most; sum >= number; --sum)
        ways_[k][AtIndex(sum)] += ways_[k - 1][AtIndex(sum - number)];
    }
  }
}

bool FillSearch::IsOrdered(const FillStep& step, int number) const {
  return std::all_of(step.Above.begin(), step.Above.end(),
                     [&](int cell) { return square_[cell] < number; }) &&
         std::all_of(step.Below.begin(), step.Below.end(),
                     [&](int cell) { return square_[cell] > number; });
}

}  // namespace numorra
