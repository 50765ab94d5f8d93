#include "count/count_all.h"

#include <iomanip>
#include <sstream>

#include "count/count_estimate.h"
#include "count/fill_search.h"
#include "count/order5_count.h"

namespace numorra {
namespace {

std::string Rounded(double number) {
  std::ostringstream out;
  out << std::setprecision(2) << number;
  return out.str();
}

}  // namespace

std::variant<std::int64_t, std::string> CountAll(const CountWish& wish, Yielding& yielding) {
  constexpr double kSeconds = 2;
  constexpr std::int64_t kSamples = 20'000;
  constexpr double kCellsOfLongSearch = 1e8;
  constexpr double kMostCells = 2e12;  // a day
  TickingClock clock(0);
  ClockSeededRandom random(clock);
  const double cells = EstimateCount(wish, kSeconds, kSamples, random, yielding).Cells;
  std::int64_t count = 0;
  if (cells > kCellsOfLongSearch && wish.Order() == 5 && wish.IsPlain() && !wish.AllImages) {
    Order5Count order5(wish.Givens);
    for (const DiagonalSet& set : order5.Sets()) {
      count += order5.CountOf(set);
      yielding.Yield();
    }
    return count;
  }
  if (cells > kMostCells) {
    return "these squares are too many to count: a search would fill about " + Rounded(cells) +
           " cells; --estimate says about how many squares there are";
  }
  FillSearch(wish, yielding).Run([&](const Square<int>&) {
    ++count;
    return true;
  });
  return count;
}

}  // namespace numorra
