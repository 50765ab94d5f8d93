#include "count/count_all.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "count/all_squares.h"
#include "count/order5_count.h"
#include "words/say.h"

namespace numorra {
namespace {

/// "1.5e+24", its point as the reader's language has it.
std::string Rounded(double number) {
  std::ostringstream out;
  out << std::setprecision(2) << number;
  const std::string text = out.str();
  const std::size_t exponent = std::min(text.find('e'), text.size());
  return Written(text.substr(0, exponent)) + text.substr(exponent);
}

}  // namespace

std::variant<std::int64_t, std::string> CountAll(const CountWish& wish, Yielding& yielding) {
  std::int64_t count = 0;
  const WayToFind way = BestWay(wish, yielding);
  if (way.Best == Way::None) {
    return Say(
        "these squares are too many to count: a search would fill about %1 cells; --estimate says "
        "about how many squares there are",
        Rounded(way.Cells));
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
