#include "study/balanced_pairs.h"
#include "study/census.h"
#include "study/images.h"
#include "study/special.h"

/// Bordered squares: rings of numbers around a square of order 3 or 4 (Stifel 1544).
///
/// A ring of order n takes the 2n - 2 smallest and the 2n - 2 largest numbers; the inner square
/// takes those between. Opposite each number of the ring, along its row, its column or, for a
/// corner, its diagonal, is its complement to n x n + 1, so that all lines through the inner square
/// are right. Measured from the mean, it remains to choose the top row and the left column so that
/// each adds up to 0. Every ring has such choices, and any of them can be drawn.
namespace numorra {
namespace {

/// The top row and then the left column of the ring, measured from the mean and doubled: first the
/// left and the right corner, then the cells between the corners. The bottom left corner is the
/// negative of the right one.
std::vector<int> DrawRing(int order, Random& random) {
  constexpr int kTop = 0;
  constexpr int kLeft = 1;
  constexpr double kTemperature = 4;  // twice the step between sizes
  std::vector<PairedPlace> places = {{{kTop, kLeft}, {1, 1}}, {{kTop, kLeft}, {1, -1}}};
  for (const int line : {kTop, kLeft})
    places.insert(places.end(), static_cast<std::size_t>(order - 2), {{line, line}, {1, 0}});
  std::vector<int> sizes;
  for (int number = 2 * order - 2; number >= 1; --number)
    sizes.push_back(order * order + 1 - 2 * number);
  return BalancedPairs(places, sizes, kTemperature, random);
}

/// The square with a ring around it; its numbers are raised to follow the ring's small ones.
Square<double> WithRing(const Square<double>& inner, Random& random) {
  const int order = inner.Order() + 2;
  const std::vector<int> ring = DrawRing(order, random);
  const int numbers = order * order;
  const double mean = (numbers + 1) / 2.0;
  Square<double> square(order);
  const int last = order - 1;
  const auto at = [&](int i, int j) -> double& { return square[i * order + j]; };
  const auto put = [&](int i, int j, int oppositeI, int oppositeJ, int place) {
    const double off = ring[static_cast<std::size_t>(place)] / 2.0;
    at(i, j) = mean + off;
    at(oppositeI, oppositeJ) = mean - off;
  };
  put(0, 0, last, last, 0);
  put(0, last, last, 0, 1);
  for (int i = 1; i < last; ++i) {
    put(0, i, last, i, 1 + i);
    put(i, 0, i, last, last + i);
    for (int j = 1; j < last; ++j)
      at(i, j) = inner[Place{i, j}] + 2 * order - 2;
  }
  return square;
}

}  // namespace

Square<double> BorderedSquare(int order, Random& random) {
  constexpr int kSmallest = 5;
  const bool even = order % 2 == 0;
  Square<double> square =
      even ? AnySquareOfOrder4(random)
           : ImageOf(random.Between(0, kImages - 1), {3, {8, 1, 6, 3, 5, 7, 4, 9, 2}});
  for (int around = even ? kSmallest + 1 : kSmallest; around <= order; around += 2)
    square = WithRing(square, random);
  return square;
}

}  // namespace numorra
