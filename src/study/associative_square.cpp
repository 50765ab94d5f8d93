#include <algorithm>

#include "study/balanced_pairs.h"
#include "study/census.h"
#include "study/special.h"
#include "study/terms.h"

/// Associative squares: measured from the mean, opposite cells hold a number and its negative. So
/// the middle row, the middle column and both diagonals add up to 0, and so does each row or column
/// whose opposite one does. It remains to give numbers to the cells before the centre so that the
/// upper rows and the left columns add up to 0; the number opposite such a cell counts with the
/// other sign.
namespace numorra {

Square<double> AssociativeSquare(int order, Random& random) {
  if (order == 4) return AnySquareOfOrder4<JudgeAssociative>(random);
  const int half = order / 2;
  const int cells = order * order;
  std::vector<PairedPlace> places;
  std::vector<int> sizes;  // in halves, because the mean of an even order is a half
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
