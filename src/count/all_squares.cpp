#include "count/all_squares.h"

#include "count/count_estimate.h"
#include "count/fill_search.h"
#include "count/order5_squares.h"

namespace numorra {

WayToFind BestWay(const CountWish& wish, Yielding& yielding) {
  constexpr double kSeconds = 2;
  constexpr std::int64_t kSamples = 20'000;
  constexpr double kCellsOfLongSearch = 1e8;
  constexpr double kMostCells = 1e12;  // half a day
  TickingClock clock(0);
  ClockSeededRandom random(clock);
  const double cells = EstimateCount(wish, kSeconds, kSamples, random, yielding).Cells;
  const bool hasDiagonals = wish.Order() == 5 && wish.Kind == LineKind::Magic && !wish.SemiMagic;
  if (hasDiagonals && cells > kCellsOfLongSearch) return {Way::Diagonals, cells};
  return {cells > kMostCells ? Way::None : Way::Fill, cells};
}

void ForEachSquare(const CountWish& wish, Yielding& yielding,
                   const std::function<bool(const Square<int>&)>& visit) {
  if (BestWay(wish, yielding).Best == Way::Diagonals) {
    ForEachSquareOfOrder5(wish, yielding, visit);
  } else {
    FillSearch(wish, yielding).Run(visit);
  }
}

}  // namespace numorra
