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

/// False if the search is to stop; the same in the functions below.
bool FillSearch::Fill(std::size_t step) {
  constexpr std::uint64_t kYieldEvery = 1U << 17U;
  if (++filled_ % kYieldEvery == 0) yielding_.Yield();
  if (step == plan_.Steps.size()) return !wish_.Meets(square_) || (*visit_)(square_);
  const FillStep& next = plan_.Steps[step];
  if (!next.Follows) return Choose(next, step + 1);
  std::int64_t number = next.Constant;
  for (const auto& [cell, factor] : next.Terms)
    number += factor * square_[cell];
  if (next.Divisor != 1) {
    if (number % next.Divisor != 0) return true;
    number /= next.Divisor;
  }
  if (number < 1 || number > square_.Size()) return true;
  const int rank = rankOf_[AtIndex(number)];
  if (rank < 0 || (free_ >> rank & 1U) == 0) return true;
  return !IsOrdered(next, static_cast<int>(number)) || Put(next, rank, step + 1);
}

bool FillSearch::Choose(const FillStep& step, std::size_t next) {
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
    if (!Put(step, rank, next)) return false;
  }
  return true;
}

bool FillSearch::Put(const FillStep& step, int rank, std::size_t next) {
  const int number = plan_.Numbers[AtIndex(rank)];
  free_ ^= std::uint64_t{1} << rank;
  Note(step.Cell, number, 1);
  square_[step.Cell] = number;
  const bool goesOn = Fill(next);
  Note(step.Cell, number, -1);
  free_ ^= std::uint64_t{1} << rank;
  return goesOn;
}

void FillSearch::Note(int cell, int number, int sign) {
  for (const int line : plan_.LinesOf[AtIndex(cell)])
    rests_[AtIndex(line)] -= sign * number;
}

bool FillSearch::IsOrdered(const FillStep& step, int number) const {
  return std::all_of(step.Above.begin(), step.Above.end(),
                     [&](int cell) { return square_[cell] < number; }) &&
         std::all_of(step.Below.begin(), step.Below.end(),
                     [&](int cell) { return square_[cell] > number; });
}

}  // namespace numorra
