#include "count/order5_squares.h"

#include <algorithm>
#include <vector>

#include "count/order5_diagonals.h"

namespace numorra {
namespace {

/// The square that the map shows.
Square<int> Mapped(const Square<int>& square, const CellMap& map) {
  return SquareOf(square.Order(),
                  [&](int cell) { return square[map[static_cast<std::size_t>(cell)]]; });
}

class Order5Squares {
 public:
  Order5Squares(const CountWish& wish, const std::function<bool(const Square<int>&)>& visit)
      : wish_(wish), visit_(visit), diagonals_(wish.Givens), isInner_(std::size_t{kAllRanks} + 1) {
    if (!wish.AllImages) ascents_ = FirstThatKeeps(wish.Givens);
  }

  bool Run(Yielding& yielding) {
    for (const DiagonalSet& set : diagonals_.Sets(false)) {
      if (!RunSet(set)) return false;
      yielding.Yield();
    }
    return true;
  }

 private:
  bool RunSet(const DiagonalSet& set) {
    left_ = NumbersBeside(set);
    const RingFiller outer(left_, diagonals_.CellsOf(Order5Diagonals::kOuterRing, left_));
    const RingFiller inner(left_, diagonals_.CellsOf(Order5Diagonals::kInnerRing, left_));
    for (const Order5Diagonals::Filling& filling : diagonals_.FillingsOf(set)) {
      const std::size_t outers = outer.Fill(filling.Outer, outer_);
      const std::size_t inners = inner.Fill(filling.Inner, inner_);
      for (std::size_t i = 0; i < inners; ++i)
        isInner_[inner_[i]] = 1;
      std::vector<RankSet> shared;
      std::copy_if(outer_.begin(), outer_.begin() + static_cast<std::ptrdiff_t>(outers),
                   std::back_inserter(shared),
                   [&](RankSet numbers) { return isInner_[kAllRanks ^ numbers] != 0; });
      for (std::size_t i = 0; i < inners; ++i)
        isInner_[inner_[i]] = 0;
      std::sort(shared.begin(), shared.end());
      shared.erase(std::unique(shared.begin(), shared.end()), shared.end());
      for (const RankSet numbers : shared) {
        if (!PutTogether(filling, numbers)) return false;
      }
    }
    return true;
  }

  /// Visits the squares whose outer ring has these numbers.
  bool PutTogether(const Order5Diagonals::Filling& filling, RankSet numbers) {
    Square<int> square(wish_.Order());
    square[square.Size() / 2] = filling.Centre;
    for (std::size_t i = 0; i < filling.Numbers.size(); ++i)
      square[Order5Diagonals::Filling::kCells[i]] = filling.Numbers[i];
    const auto inners = RingsOf(left_, static_cast<RankSet>(kAllRanks ^ numbers), filling.Inner);
    for (const Ring& outer : RingsOf(left_, numbers, filling.Outer)) {
      for (const Ring& inner : inners) {
        for (std::size_t i = 0; i < outer.size(); ++i) {
          square[Order5Diagonals::kOuterRing[i]] = outer[i];
          square[Order5Diagonals::kInnerRing[i]] = inner[i];
        }
        if (HoldsGivens(square) && !VisitRearranged(square)) return false;
      }
    }
    return true;
  }

  bool HoldsGivens(const Square<int>& square) const {
    return std::equal(square.begin(), square.end(), wish_.Givens.begin(),
                      [](int number, int given) { return given == 0 || number == given; });
  }

  bool VisitRearranged(const Square<int>& square) const {
    for (const CellMap& map : diagonals_.Maps()) {
      const auto at = [&](int cell) { return square[map[static_cast<std::size_t>(cell)]]; };
      const bool first = std::all_of(ascents_.begin(), ascents_.end(), [&](const Ascent& ascent) {
        return at(ascent.Smaller) < at(ascent.Larger);
      });
      if (!first) continue;
      const Square<int> image = Mapped(square, map);
      if (wish_.Meets(image) && !visit_(image)) return false;
    }
    return true;
  }

  const CountWish& wish_;
  const std::function<bool(const Square<int>&)>& visit_;
  Order5Diagonals diagonals_;
  std::vector<Ascent> ascents_;
  RingNumbers left_{};
  RingFiller::Fillings outer_, inner_;
  std::vector<char> isInner_;  ///< by set: the inner ring has a filling; zeros between uses
};

}  // namespace

void ForEachSquareOfOrder5(const CountWish& wish, Yielding& yielding,
                           const std::function<bool(const Square<int>&)>& visit) {
  Order5Squares(wish, visit).Run(yielding);
}

}  // namespace numorra
