#include "puzzle/puzzle.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "app/board/numbers.h"

namespace numorra {
namespace {

/// What a number is that the puzzle cannot hold.
std::string WhatIs(double number, const Puzzle& puzzle) {
  if (puzzle.Asked == Rules::Normal || puzzle.LimitToNine) {
    return "none of the numbers 1 to " + std::to_string(puzzle.Most());
  }
  if (number < 1 || number != std::floor(number)) return "no whole number of 1 or more";
  return "more than the sum leaves for one cell, " + std::to_string(puzzle.Most());
}

/// A number that stands in two cells: the one to blame is no given where the other is.
AgainstRules Twice(const StoredSquare& square, Place first, Place second) {
  const auto given = [&](Place place) {
    return !square.Givens.empty() && square.Givens[IndexOf(place, square.Order)];
  };
  if (given(second) && !given(first)) std::swap(first, second);
  return {Decimal(*square.Cells[IndexOf(second, square.Order)]) + " in " + NameOf(second) +
              " stands in " + NameOf(first) + " too",
          second};
}

}  // namespace

std::int64_t Puzzle::Most() const {
  if (Asked == Rules::Normal) return std::int64_t{Order} * Order;
  const std::int64_t fits = std::max<std::int64_t>(1, Target - Order + 1);
  constexpr std::int64_t kNine = 9;
  return LimitToNine ? std::min(kNine, fits) : fits;
}

int Puzzle::Gaps() const {
  return static_cast<int>(std::count(Cells.begin(), Cells.end(), 0));
}

std::variant<Puzzle, AgainstRules> PuzzleOf(const StoredSquare& square, bool limitToNine) {
  const double target = square.Total.value_or(static_cast<double>(NormalTotal(square.Order)));
  const std::string sum = "the sum " + Decimal(target);
  if (target != std::floor(target) || target < square.Order ||
      target > static_cast<double>(Puzzle::kMostTarget)) {
    return AgainstRules{sum + " is none that whole numbers of 1 or more make here"};
  }
  Puzzle puzzle{square.Order, static_cast<std::int64_t>(target), square.Asked, limitToNine, {}};
  if (square.Asked == Rules::Normal && puzzle.Target != NormalTotal(square.Order)) {
    return AgainstRules{sum + " is not that of the numbers 1 to " + std::to_string(puzzle.Most()) +
                        ", which is " + std::to_string(NormalTotal(square.Order))};
  }
  std::map<double, int> seen;
  for (const auto& cell : square.Cells) {
    const int index = static_cast<int>(puzzle.Cells.size());
    const Place place = puzzle.PlaceOf(index);
    if (cell &&
        (*cell < 1 || *cell > static_cast<double>(puzzle.Most()) || *cell != std::floor(*cell))) {
      return AgainstRules{Decimal(*cell) + " in " + NameOf(place) + " is " + WhatIs(*cell, puzzle),
                          place};
    }
    if (cell && square.Asked == Rules::Normal && !seen.emplace(*cell, index).second) {
      return Twice(square, puzzle.PlaceOf(seen[*cell]), place);
    }
    puzzle.Cells.push_back(static_cast<std::int64_t>(cell.value_or(0)));
  }
  return puzzle;
}

StoredSquare StoredSquareOf(const Puzzle& puzzle, bool givens) {
  StoredSquare square{
      .Order = puzzle.Order, .Total = static_cast<double>(puzzle.Target), .Asked = puzzle.Asked};
  for (const std::int64_t cell : puzzle.Cells) {
    square.Cells.push_back(cell == 0 ? std::nullopt : std::optional(static_cast<double>(cell)));
    if (givens) square.Givens.push_back(cell != 0);
  }
  return square;
}

}  // namespace numorra
