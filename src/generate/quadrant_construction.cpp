#include <algorithm>
#include <string>
#include <utility>

#include "app/board/board.h"
#include "generate/construction.h"
#include "generate/moved_steps.h"
#include "generate/stepping_moves.h"
#include "words/say.h"

/// Strachey's method for orders n = 4k + 2. The four quadrants, of the odd order m = 2k + 1, hold
/// the same odd square, with the numbers
///
///     upper left   1 to m x m           upper right  raised by 2 m x m
///     lower left   raised by 3 m x m    lower right  raised by m x m
///
/// The columns are right: what is added to the two halves of a column is the same. To make the rows
/// right, too, upper and lower numbers are exchanged in the first k columns and the last k - 1. In
/// the middle rows of the halves, the first k columns are shifted by one to the right, which makes
/// the diagonals right.
namespace numorra {
namespace {

/// The columns of a row of the upper half in which it exchanges numbers with the lower half:
/// `Count` from `First` on, and the last `Last`.
struct ExchangedColumns {
  int First, Count, Last;
};

ExchangedColumns ColumnsOf(int row, int m) {
  const int k = (m - 1) / 2;
  return {row == k + 1 ? 2 : 1, k, k - 1};
}

bool IsExchanged(int row, int column, int m) {
  const ExchangedColumns columns = ColumnsOf(row, m);
  return (column >= columns.First && column < columns.First + columns.Count) ||
         column > 2 * m - columns.Last;
}

/// What a quadrant adds to the numbers of the odd square, in units of m x m, before the exchange.
int RaiseOf(bool lower, bool right) {
  if (lower) return right ? 1 : 3;
  return right ? 2 : 0;
}

/// Where the number of an upper or lower quadrant is before or after the exchange, which undoes
/// itself.
Place Exchanged(Place place, int m) {
  const int row = place.Row > m ? place.Row - m : place.Row;
  if (!IsExchanged(row, place.Column, m)) return place;
  return {place.Row > m ? row : row + m, place.Column};
}

/// The place in a quadrant of the odd square's place.
Place InQuadrant(Place place, bool lower, bool right, int m) {
  return {place.Row + (lower ? m : 0), place.Column + (right ? m : 0)};
}

Square<double> SquareOfQuadrants(const Square<double>& odd) {
  const int m = odd.Order();
  return SquareOf(2 * m, [&](int cell) {
    const Place from = Exchanged(PlaceAt(cell, 2 * m), m);
    const bool lower = from.Row > m;
    const bool right = from.Column > m;
    return odd[Place{from.Row - (lower ? m : 0), from.Column - (right ? m : 0)}] +
           RaiseOf(lower, right) * m * m;
  });
}

CellTable BuildOfQuadrants(int order, BuildChoices& choices) {
  const int m = order / 2;
  return TableOf(SquareOfQuadrants(SquareOf(kSteppingConstruction.Build(m, choices), m)));
}

/// The other quadrants take the numbers of the first one.
WalkStep RaisedQuadrant(const PlacedNumbers& odd, bool lower, bool right) {
  const int m = odd.Order();
  const int raise = RaiseOf(lower, right) * m * m;
  WalkStep step;
  for (int number = 1; number <= m * m; ++number) {
    const Place place = InQuadrant(odd.PlaceOf(number), lower, right, m);
    step.Written.emplace_back(place, std::to_string(number + raise));
    step.Marked.push_back(place);
  }
  step.Arrow = {InQuadrant({1, 1}, false, false, m), InQuadrant({1, 1}, lower, right, m)};
  step.Sentence = Say(!lower  ? Mark("the upper right quarter takes the numbers of the upper left "
                                      "one, each raised by %1")
                      : right ? Mark("the lower right quarter takes the numbers of the upper left "
                                     "one, each raised by %1")
                              : Mark("the lower left quarter takes the numbers of the upper left "
                                     "one, each raised by %1"),
                      raise);
  return step;
}

/// The exchange in the columns of the row: one of them, or two runs, the second of which may be one
/// column.
std::string RowExchangeSentence(int row, int m) {
  const ExchangedColumns columns = ColumnsOf(row, m);
  const int first = columns.First;
  const int last = first + columns.Count - 1;
  if (columns.Last == 0) {
    return Say("rows %1 and %2 exchange their numbers in column %3", row, row + m, first);
  }
  if (columns.Last == 1) {
    return Say("rows %1 and %2 exchange their numbers in columns %3 to %4 and %5", row, row + m,
               first, last, 2 * m);
  }
  return Say("rows %1 and %2 exchange their numbers in columns %3 to %4 and %5 to %6", row, row + m,
             first, last, 2 * m - columns.Last + 1, 2 * m);
}

WalkStep RowExchange(const Square<double>& square, int row, int m) {
  WalkStep step;
  for (int column = 1; column <= 2 * m; ++column) {
    if (!IsExchanged(row, column, m)) continue;
    for (const Place place : {Place{row, column}, Place{row + m, column}}) {
      step.Written.emplace_back(place, std::to_string(static_cast<int>(square[place])));
      step.Marked.push_back(place);
    }
  }
  step.Sentence = RowExchangeSentence(row, m);
  if (ColumnsOf(row, m).First > 1) {
    // Translators: %1 is "rows 2 and 5 exchange their numbers in column 2"
    step.Sentence = Say("%1, further right as these are the middle rows", step.Sentence);
  }
  return step;
}

/// The odd square number by number, the other quadrants, then the exchanges row by row.
std::vector<WalkStep> StepsOfQuadrants(const PlacedNumbers& square) {
  const int m = square.Order() / 2;
  const PlacedNumbers odd(
      SquareOf(m, [&](int cell) { return square.Numbers()[Exchanged(PlaceAt(cell, m), m)]; }));
  if (SquareOfQuadrants(odd.Numbers()) != square.Numbers()) return {};
  const auto moves = MovesOf(odd);
  if (!moves) return {};
  // Translators: %1 is a step of another construction: "2 goes up and to the right"
  constexpr const char* kWithin = Mark("in the upper left quarter, %1");
  std::vector<WalkStep> walk = MovedSteps(StepsByMoves(odd, *moves), kWithin,
                                          [](Place place) { return std::vector<Place>{place}; });
  for (const auto& [lower, right] : {std::pair(true, true), {false, true}, {true, false}})
    walk.push_back(RaisedQuadrant(odd, lower, right));
  for (int row = 1; row <= m; ++row)
    walk.push_back(RowExchange(square.Numbers(), row, m));
  return walk;
}

}  // namespace

const Construction kQuadrantConstruction = {
    "quadrants",
    "BuildQuadrantsx",
    Mark("&Quadrants"),
    Mark("Ralph Strachey, 1918"),
    [](int order) -> std::string {
      if (order > 2 && order % 4 == 2) return {};
      return Say("the method of quadrants makes the orders 6, 10, 14 and so on, not %1", order);
    },
    BuildOfQuadrants,
    StepsOfQuadrants};

}  // namespace numorra
