#include "count/order5_count.h"

namespace numorra {

Order5Count::Order5Count(const Square<int>& givens)
    : diagonals_(givens),
      sets_(diagonals_.Sets(true)),
      imagesEach_(static_cast<std::int64_t>(
          diagonals_.Maps().size() / MapsThatKeep(givens, EightImages(givens.Order())).size())),
      counts_(std::size_t{kAllRanks} + 1) {}

std::int64_t Order5Count::CountOf(const DiagonalSet& set) {
  const RingNumbers left = NumbersBeside(set);
  const RingFiller outer(left, diagonals_.CellsOf(Order5Diagonals::kOuterRing, left));
  const RingFiller inner(left, diagonals_.CellsOf(Order5Diagonals::kInnerRing, left));
  std::int64_t found = 0;
  for (const Order5Diagonals::Filling& filling : diagonals_.FillingsOf(set)) {
    const std::size_t outers = outer.Fill(filling.Outer, outer_);
    if (outers == 0) continue;
    const std::size_t inners = inner.Fill(filling.Inner, inner_);
    for (std::size_t i = 0; i < outers; ++i)
      ++counts_[outer_[i]];
    for (std::size_t i = 0; i < inners; ++i)
      found += counts_[kAllRanks ^ inner_[i]];
    for (std::size_t i = 0; i < outers; ++i)
      counts_[outer_[i]] = 0;
  }
  return found * imagesEach_ * diagonals_.WeightOf(set);
}

}  // namespace numorra
