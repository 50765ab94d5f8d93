#include "count/count_all.h"

#include <iomanip>
#include <sstream>

#include "count/all_squares.h"
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
  std::int64_t count = 0;
  const WayToFind way = BestWay(wish, yielding);
  if (way.Best == Way::None) {
    return "these squares are too many to count: a search would fill about " + Rounded(way.Cells) +
           " cells; --estimate says about how many squares there are";
  }
  if (way.Best == Way::Diagonals && wish.Terms.empty() && !wish.AllImages) {
    Order5Count order5(wish.Givens);
    for (const DiagonalSet& set : order5.Sets()) {
      count += order5.CountOf(set);
      yielding.Yield();
    }
    return count;
  }
  ForEachSquare(wish, yielding, [&](const Square<int>&) {
    ++count;
    return true;
  });
  return count;
}

}  // namespace numorra
