#include <algorithm>
#include <numeric>
#include <span>

#include "study/census.h"
#include "study/images.h"
#include "study/special.h"

/// Bordered squares: rings of numbers around a square of order 3 or 4 (Stifel 1544).
///
/// A ring of order n takes the 2n - 2 smallest numbers, k, and the largest, n x n + 1 - k, each
/// opposite its k; the square within takes those between. So columns and rows within are right, and
/// it remains to choose what stands in the top row and in the left column: there a ring writes k
/// for the small number and -k for the large one that stands opposite a small k.
///
/// n = 2p + 1. The entries of either line add up to 2p^2 + 2p + 1. Corners 2p + 2 and 2p; the top
/// has -1, -3, ..., -(2p - 1), the left has -2, -4, ..., -(2p - 2) and, as its corner below, -2p.
/// Then p - 1 of the other numbers up to 4p, with the mean 3p + 1, complete the top: pairs
/// 3p + 1 +- x, and 3p + 1 itself where p is even. The rest completes the left.
///
/// n = 2p. The entries of either line add up to 0, half of them small. Four numbers in a row, c the
/// middle ones, or six, c the fourth and fifth of them, give the corners c, and all others stand in
/// pairs of neighbours, k and -(k + 1) or the reverse, so that
///   p even: top      c + c' - h - h' = 0, with the outer ones h, and pairs that cancel;
///           left     c' - c = 1, and one pair more that takes 1 than gives it;
///   p odd:  top      c + c' - h - h' = 1, with the second and sixth for h;
///           left     c' - c = 1, the first less the third, and pairs.
namespace numorra {
namespace {

/// What stands in the top row and the left column of a ring.
struct Ring {
  int Left = 0;   ///< the corner at the top left
  int Right = 0;  ///< and at the top right; minus this stands at the bottom left
  std::vector<int> Top;
  std::vector<int> Side;
};

Ring OddRing(int order, Random& random) {
  const int p = order / 2;
  Ring ring{2 * p + 2, 2 * p, {}, {}};
  for (int k = 1; k < 2 * p; ++k)
    (k % 2 == 1 ? ring.Top : ring.Side).push_back(-k);
  std::vector<int> steps(static_cast<std::size_t>(std::max(0, p - 2)));
  std::iota(steps.begin(), steps.end(), 1);
  Shuffle(std::span(steps), random);
  const int mean = 3 * p + 1;
  std::vector<int> chosen;
  if (p % 2 == 0) chosen.push_back(mean);
  for (int pair = 0; pair < (p - 1) / 2; ++pair) {
    const int step = steps[static_cast<std::size_t>(pair)];
    chosen.insert(chosen.end(), {mean - step, mean + step});
  }
  for (int k = 2 * p + 1; k <= 4 * p; ++k) {
    if (k == ring.Left) continue;
    const bool top = std::find(chosen.begin(), chosen.end(), k) != chosen.end();
    (top ? ring.Top : ring.Side).push_back(k);
  }
  return ring;
}

/// Adds k and k + 1, with different signs, for each of `pairs`; all that is added makes `sum`.
void AddPairs(std::vector<int>& line, std::span<const int> pairs, int sum) {
  int taking = (static_cast<int>(pairs.size()) - sum) / 2;  // k - (k + 1) takes 1
  for (const int k : pairs) {
    const int sign = taking-- > 0 ? 1 : -1;
    line.insert(line.end(), {sign * k, -sign * (k + 1)});
  }
}

Ring EvenRing(int order, Random& random) {
  const int p = order / 2;
  const bool odd = p % 2 == 1;
  const int block = odd ? 6 : 4;
  const int pairs = (4 * p - 2 - block) / 2;
  const int first = 2 * random.Between(0, pairs) + 1;  // of the block
  std::vector<int> neighbours;
  for (int k = 1; k < 4 * p - 2; k += 2) {
    if (k < first || k >= first + block) neighbours.push_back(k);
  }
  Shuffle(std::span(neighbours), random);
  const auto onTop = std::span(neighbours).first(static_cast<std::size_t>(p - 2));
  const auto onSide = std::span(neighbours).subspan(onTop.size());
  Ring ring;
  if (odd) {
    ring = {first + 4, first + 3, {-first - 1, -first - 5}, {first, -first - 2}};
    AddPairs(ring.Top, onTop, -1);
    AddPairs(ring.Side, onSide, 1);
  } else {
    ring = {first + 2, first + 1, {-first, -first - 3}, {}};
    AddPairs(ring.Top, onTop, 0);
    AddPairs(ring.Side, onSide, -1);
  }
  return ring;
}

/// The square with the ring around it, its numbers raised so that they follow the ring's small
/// ones.
Square<double> WithRing(const Square<double>& inner, const Ring& ring) {
  const int order = inner.Order() + 2;
  const int numbers = order * order;
  const auto numberOf = [&](int entry) { return entry > 0 ? entry : numbers + 1 + entry; };
  Square<double> square(order);
  const auto put = [&](int i, int j, int entry) { square[i * order + j] = numberOf(entry); };
  const int last = order - 1;
  put(0, 0, ring.Left);
  put(last, last, -ring.Left);
  put(0, last, ring.Right);
  put(last, 0, -ring.Right);
  for (int i = 1; i < last; ++i) {
    const int top = ring.Top[static_cast<std::size_t>(i - 1)];
    const int side = ring.Side[static_cast<std::size_t>(i - 1)];
    put(0, i, top);
    put(last, i, -top);
    put(i, 0, side);
    put(i, last, -side);
    for (int j = 1; j < last; ++j) {
      square[i * order + j] = inner[Place{i, j}] + 2 * order - 2;
    }
  }
  return square;
}

Square<double> Core(bool even, Random& random) {
  if (!even) return {3, {8, 1, 6, 3, 5, 7, 4, 9, 2}};
  const auto& squares = SquaresOfOrder4();
  const auto& chosen =
      squares[static_cast<std::size_t>(random.Between(0, static_cast<int>(squares.size()) - 1))];
  return {4, {chosen.begin(), chosen.end()}};
}

}  // namespace

Square<double> BorderedSquare(int order, Random& random) {
  const bool even = order % 2 == 0;
  Square<double> square = Core(even, random);
  for (int around = even ? 6 : 5; around <= order; around += 2) {
    Ring ring = even ? EvenRing(around, random) : OddRing(around, random);
    Shuffle(std::span(ring.Top), random);
    Shuffle(std::span(ring.Side), random);
    square = WithRing(ImageOf(random.Between(0, kImages - 1), square), ring);
  }
  return ImageOf(random.Between(0, kImages - 1), square);
}

}  // namespace numorra
