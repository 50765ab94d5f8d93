#include <algorithm>

#include "study/balanced_pairs.h"
#include "study/census.h"
#include "study/special.h"
#include "study/terms.h"

/// Associative squares: with numbers read as what they are off the mean, opposite cells hold a
/// number and its negative. So the middle row and column and both diagonals add up to 0, and the
/// rows and columns below and right of the middle do where those opposite them do. It remains to
/// give the cells before the centre numbers so that the upper rows and the left columns add up to
/// 0; what stands opposite a cell of theirs counts with the other sign.
namespace numorra {

Square<double> AssociativeSquare(int order, Random& random) {
  if (order == 4) return AnySquareOfOrder4<JudgeAssociative>(random);
  const int half = order / 2;
  const int cells = order * order;
  std::vector<PairedPlace> places;
  std::vector<int> sizes;  // in halves, as the mean of an even order is
  for (int cell = 0; cell < cells / 2; ++cell) {
    const int i = cell / order;
    const int j = cell % order;
    const bool left = j < half;
    const bool middle = 2 * j + 1 == order;
    places.push_back({{std::min(i, half - 1), half + std::min(j, order - 1 - j) - (middle ? 1 : 0)},
                      {i < half ? 1 : 0, middle ? 0 : (left ? 1 : -1)}});
    sizes.push_back(2 * cell + (order % 2 == 0 ? 1 : 2));
  }
  const double temperature = 0.4 + 8.4 / order;
  const std::vector<int> off = BalancedPairs(places, sizes, temperature, random);
  Square<double> square(order, (cells + 1) / 2.0);
  int cell = 0;
  for (const int difference : off) {
    square[cell] += difference / 2.0;
    square[cells - 1 - cell] -= difference / 2.0;
    ++cell;
  }
  return square;
}

}  // namespace numorra
