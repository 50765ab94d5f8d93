#include <string>
#include <utility>

#include "generate/construction.h"
#include "words/say.h"

/// The lozenge, for odd orders n = 2m + 1: the odd numbers fill a lozenge in the middle of the
/// square, diagonal by diagonal, and each diagonal goes on with even numbers, with wrap-around.
///
///     .  .  5  .  .        .  .  5  6  .        18 24  5  6 12
///     .  3  .  .  .        .  3  9  .  .        22  3  9 15 16
///     1  .  .  .  .   ->   1  7  .  .  .   ->    1  7 13 19 25
///     .  .  .  .  4       10  .  .  .  4        10 11 17 23  4
///     .  .  .  2  .        .  .  .  2  8        14 20 21  2  8
///
/// With number = n q + r + 1, each diagonal that rises holds one q and all r, and each one that
/// falls one r and all q. Each row and column has all of both. The main diagonals have the middle q
/// and the middle r, so all lines have the same sum.
namespace numorra {
namespace {

/// The place of the number n q + r + 1 in the lozenge's square of order n.
Place LozengePlace(int q, int r, int n) {
  const int up = (n - 1) / 2;
  const int down = (n + 1) / 2;
  return {(up + r * up + q * down) % n + 1, (r + q) * down % n + 1};
}

CellTable BuildLozenge(int order, BuildChoices& /*choices*/) {
  CellTable cells;
  for (int number = 0; number < order * order; ++number) {
    const Place place = LozengePlace(number / order, number % order, order);
    cells(place.Row, place.Column) = number + 1;
  }
  return cells;
}

/// Writes every other number from `first` to `last`, which are on diagonal q.
WalkStep LozengeRun(int q, int first, int last, int n) {
  WalkStep step{{}, {}, {}, {}, first};
  for (int number = first; number <= last; number += 2) {
    const Place place = LozengePlace(q, number - 1 - n * q, n);
    step.Written.emplace_back(place, std::to_string(number));
    step.Marked.push_back(place);
  }
  return step;
}

/// The odd numbers, diagonal by diagonal, then the even ones.
std::vector<WalkStep> StepsOfLozenge(const PlacedNumbers& square) {
  const int n = square.Order();
  if (ExampleOf(kLozengeConstruction, n) != square.Numbers()) return {};
  std::vector<WalkStep> walk;
  std::vector<WalkStep> evens;
  for (int q = 0; q < n; ++q) {
    const int least = n * q + 1;
    const int most = n * q + n;
    const int firstOdd = least % 2 == 1 ? least : least + 1;
    const int lastOdd = most % 2 == 1 ? most : most - 1;
    const int firstEven = least % 2 == 0 ? least : least + 1;
    const int lastEven = most % 2 == 0 ? most : most - 1;
    WalkStep odd = LozengeRun(q, firstOdd, lastOdd, n);
    const Place start = odd.Marked.front();
    const Place end = odd.Marked.back();
    if (firstOdd == lastOdd) {
      odd.Sentence = Say("the odd number %1 goes to %2", firstOdd, NameOf(start));
    } else {
      odd.Arrow = {start, end};
      odd.Sentence = Say("the odd numbers %1 to %2 go up and to the right from %3", firstOdd,
                         lastOdd, NameOf(start));
    }
    walk.push_back(std::move(odd));
    WalkStep even = LozengeRun(q, firstEven, lastEven, n);
    even.Arrow = {end, even.Marked.front()};
    even.Sentence =
        firstEven == lastEven
            ? Say("the even number %1 goes on up and to the right from %2; what leaves the board "
                  "comes in again on the opposite side",
                  firstEven, lastOdd)
            : Say("the even numbers %1 to %2 go on up and to the right from %3; what leaves the "
                  "board comes in again on the opposite side",
                  firstEven, lastEven, lastOdd);
    evens.push_back(std::move(even));
  }
  walk.insert(walk.end(), evens.begin(), evens.end());
  return walk;
}

}  // namespace

const Construction kLozengeConstruction = {
    "lozenge",
    "BuildLozengex",
    Mark("&Lozenge"),
    Mark("an old method, which John Conway called the lozenge"),
    [](int order) -> std::string {
      if (order >= 3 && order % 2 == 1) return {};
      return Say("the lozenge makes odd orders from 3, not %1", order);
    },
    BuildLozenge,
    StepsOfLozenge};

}  // namespace numorra
